#pragma once

#include <cstdint>
#include <functional>

#include "base/code_page.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "deck/file/file_number.h"
#include "deck/program_state.h"
#include "import/cards_reading.h"
#include "machine/clock.h"
#include "machine/message_box.h"

namespace tessara {

/// What an import fills and what it asks for. Windows are none of its business.
struct ImportContext {
  ProgramState& state;
  FileNumber& fileNumber;
  MessageBoxes& messages;
  const CodePage& codePage;
  Date today;
  /// Shows the number of cards, at each card's number that is read.
  std::function<void(std::int16_t)> setCardTotal;
  /// Brings up the deck that has been read, at its first card.
  std::function<void(DeckKind)> showDeck;
};

/// Opens the file, reads its cards, closes it; tells where there are none, and abandons the import
/// where the file has an error. True where the import is to end well, be it with an empty table.
[[nodiscard]] bool ReadImportFile(const Text& fileName, const ImportContext& context,
                                  CardsReader readCards);

/// The most characters of a text that an import puts into the table. A deck file keeps 444 of
/// them, and nobody reads more on a card: the bound is there for the file that is no deck at all.
inline constexpr std::size_t kLongestImportedText = 0x40000;
/// The text, up to that bound.
[[nodiscard]] Text BoundedText(TextView text);
/// Adds a line to a text, up to that bound. False where the line was cut.
bool AddBounded(Text& text, TextView line);

/// Shows the deck that has been read, at card 1.
void ShowImportedDeck(DeckKind kind, const ImportContext& context);
/// Marks the deck as a new one, never saved, with the information that a new one has.
void MarkAsImported(const Text& kind, const ImportContext& context);
/// Fills the information row; `kind` is the word for the type of the deck.
void SetImportedDeckInfo(const Text& kind, const Date& today, ProgramState& state);

/// The clean-up of a failed import. The card count and the standard reader's numbers stay.
void AbandonImport(ProgramState& state);
/// The same for an error that the reader did not foresee, which is told first.
void AbandonImport(const RunTimeError& error, const ImportContext& context);

}  // namespace tessara
