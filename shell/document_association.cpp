#include "shell/document_association.h"

#include "machine/class_registry.h"
#include "machine/program_file.h"
#include "machine/settings_store.h"
#include "shell/settings.h"

namespace tessara {

namespace {

constexpr TextView kExtensionKey = u".tsr";
constexpr TextView kClassKey = u"Tessara.Document";
constexpr TextView kCommandKey = u"Tessara.Document\\shell\\open\\command";
constexpr TextView kIconKey = u"Tessara.Document\\DefaultIcon";

void SetDefaultValue(TextView key, const Text& value, ClassRegistry& root) {
  root.SetClassValue(Text(key), u"", value);
}

}  // namespace

void RegisterDocumentType(const Machine& machine) {
  ClassRegistry& root = machine.classes;
  root.CreateClassKey(Text(kExtensionKey));
  SetDefaultValue(kExtensionKey, Text(kClassKey), root);
  root.CreateClassKey(Text(kCommandKey));
  root.CreateClassKey(Text(kIconKey));
  SetDefaultValue(kIconKey, ProgramFile(machine, u"Notelet.ico"), root);
  SetDefaultValue(kCommandKey, ProgramFile(machine, u"Tessara.EXE %1"), root);
  SetDefaultValue(kClassKey, u"Tessara File", root);
  root.Publish();
  machine.settings.Write(Text(kFirstLoadKey), u"False");
}

}  // namespace tessara
