#include "shell/documents.h"

#include "machine/desktop.h"
#include "machine/document_types.h"
#include "machine/machine.h"
#include "machine/message_box.h"
#include "machine/settings_store.h"
#include "shell/settings.h"

namespace tessara {

void RegisterDocumentType(const Machine& machine) {
  machine.documentTypes.Declare({ProgramFile(machine, u"tessara.xml"),
                                 ProgramFile(machine, u"tessara.desktop"),
                                 ProgramFile(machine, u"icons"), ProgramFile(machine, u"tessara")});
  machine.settings.Write(Text(kFirstLoadKey), u"False");
}

int OpenWithShell(const Text& path, const Machine& machine) {
  const int result = machine.desktop.Open(path);
  if (result == kOpenFileNotFound) {
    machine.messages.Show(path + u" was not found in the Tessara program directory.", kOkOnly,
                          u"File Not Found");
  }
  return result;
}

int OpenTearingSheet(const Machine& machine) {
  return OpenWithShell(ProgramFile(machine, u"Tearing Sheet.bmp"), machine);
}

int OpenQuickStart(const Machine& machine) {
  return OpenWithShell(ProgramFile(machine, u"QuickStartDocument.wri"), machine);
}

void SendMailTo(const Text& address, const Machine& machine) {
  machine.desktop.Open(address);
}

}  // namespace tessara
