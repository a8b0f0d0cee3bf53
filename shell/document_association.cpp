#include "shell/document_association.h"

#include "machine/document_types.h"
#include "machine/program_file.h"
#include "machine/settings_store.h"
#include "shell/settings.h"

namespace tessara {

void RegisterDocumentType(const Machine& machine) {
  machine.documentTypes.Declare({ProgramFile(machine, u"tessara.xml"),
                                 ProgramFile(machine, u"tessara.desktop"),
                                 ProgramFile(machine, u"icons"), ProgramFile(machine, u"tessara")});
  machine.settings.Write(Text(kFirstLoadKey), u"False");
}

}  // namespace tessara
