#include "deck/file/deck_file_name.h"

#include "deck/file/deck_path.h"

namespace tessara {

bool IsDeckFileName(const Text& fileName, MessageBoxes& messages) {
  const bool isOne = fileName.ends_with(u"tsr");
  if (!isOne) messages.Show(u"This is not a valid Tessara file", kStopIcon, u"Error Opening File");
  return isOne;
}

bool IsDeckFileName(const Text& fileName, ProgramState& state, MessageBoxes& messages) {
  const bool isOne = IsDeckFileName(fileName, messages);
  if (!isOne) state.deck.filePath.clear();
  return isOne;
}

bool DeckAlreadyOpen(const Text& fileName, TextView caption, MessageBoxes& messages) {
  const auto bracket = caption.find(u'[');
  const TextView name = bracket == TextView::npos ? caption : Trimmed(caption.substr(0, bracket));
  if (name != DeckNameOf(fileName)) return false;
  messages.Show(Text(name) + u" Tessara is already open", kInformationIcon,
                u"Open Existing Tessara");
  return true;
}

bool EmptyDeckRefused(const ProgramState& state, MessageBoxes& messages) {
  if (state.deck.HasCards()) return false;
  messages.Show(u"You can not save an empty deck to file. You must add at least one card.",
                kExclamationIcon, u"Error Saving");
  return true;
}

}  // namespace tessara
