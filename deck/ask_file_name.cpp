#include "deck/ask_file_name.h"

#include "platform/desktop.h"

namespace tessara {

Text AskFileName(FileDialogMode mode, TextView filter, const Machine& machine) {
  FileDialogRequest request;
  request.mode = mode;
  request.filter = filter;
  request.flags = kFileMustExist + kHideReadOnly;
  request.initialFolder = machine.programFolder;
  Text path = machine.dialogs.AskFile(request);
  machine.desktop.SetMousePointer(MousePointer::kDefault);
  return path;
}

bool NoAnswer(TextView path) {
  return path.empty() || path == u"*.tsr";
}

}  // namespace tessara
