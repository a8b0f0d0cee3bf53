#include "deck/ask_file_name.h"

#include "deck/frmSaveBox.h"
#include "forms/window.h"
#include "platform/desktop.h"

namespace tessara {

Text AskFileName(FileDialogMode mode, TextView filter, AppContext& app) {
  Machine& machine = app.machine;
  WindowSlot slot(app.windows, [&app] { return std::make_unique<frmSaveBox>(app.windows); });
  const Window<frmSaveBox> box(slot);
  FileDialogRequest& dialog = box->CommonDialog1;
  dialog.mode = mode;
  dialog.filter = filter;
  dialog.flags = kFileMustExist + kHideReadOnly;
  dialog.initialFolder = machine.programFolder;
  Text path = machine.dialogs.AskFile(dialog);
  machine.desktop.SetMousePointer(MousePointer::kDefault);
  box.Unload();
  return path;
}

bool NoAnswer(TextView path) {
  return path.empty() || path == u"*.tsr";
}

}  // namespace tessara
