#include "deck/life/ask_file_name.h"

#include "deck/life/dialog_places.h"
#include "deck/life/file_dialog_holder.h"
#include "forms/window.h"
#include "machine/desktop.h"

namespace tessara {

Text AskFileName(FileDialogMode mode, TextView filter, AppContext& app) {
  Machine& machine = app.machine;
  WindowSlot<FileDialogHolder> slot(
      app.windows, [&app] { return std::make_unique<FileDialogHolder>(app.windows); });
  const Window<FileDialogHolder> box(slot);
  FileDialogRequest& dialog = box->dialog;
  dialog.mode = mode;
  dialog.filter = filter;
  dialog.flags = kFileMustExist + kHideReadOnly;
  dialog.initialFolder = DialogFolder(machine, app.state);
  if (mode == FileDialogMode::kSave) {
    dialog.refusal = [&machine](const Text& path) {
      return NoAnswer(path) ? Text() : SaveRefusal(path, machine.files);
    };
  }
  Text path = machine.dialogs.AskFile(dialog);
  NoteFolderOf(path, app.state);
  machine.desktop.SetMousePointer(MousePointer::kDefault);
  box.Unload();
  return path;
}

bool NoAnswer(TextView path) {
  return path.empty() || path == u"*.tsr";
}

}  // namespace tessara
