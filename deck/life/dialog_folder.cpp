#include "deck/life/dialog_folder.h"

#include <algorithm>

#include "deck/life/save_place.h"
#include "machine/desktop.h"
#include "machine/file_system.h"
#include "machine/program_file.h"

namespace tessara {

Text DialogFolder(const Machine& machine, const ProgramState& state) {
  const Text likeADeck = ProgramFile(machine, u"deck.tsr");
  if (SaveRefusal(likeADeck, machine.files).empty()) return machine.programFolder;
  const Text& last = state.dialogs.folderUsedLast;
  const bool stillThere = !last.empty() && machine.files.EntryName(last).has_value();
  return stillThere ? last : machine.desktop.DocumentsFolder();
}

void NoteFolderOf(const Text& path, ProgramState& state) {
  const std::size_t separator = path.find_last_of(u"/\\");
  if (separator == Text::npos) return;
  // The root keeps its separator.
  state.dialogs.folderUsedLast = path.substr(0, std::max<std::size_t>(separator, 1));
}

}  // namespace tessara
