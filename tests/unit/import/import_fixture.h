#pragma once

#include <ostream>
#include <vector>

#include "base/utf8.h"
#include "import/extended_import.h"
#include "import/import_common.h"
#include "import/standard_import.h"
#include "tests/support/fakes/fake_messages.h"
#include "tests/support/sample_deck.h"
#include "tests/unit/import/text_file.h"

namespace tessara::test {

using Boxes = std::vector<FakeMessages::Shown>;

inline const FakeMessages::Shown kNoCards{
    u"No cards were found in this file, recheck the format of the file.", kStopIcon,
    u"Import Canceled"};
inline const FakeMessages::Shown kBadFirstCard{
    u"First card is equal to 0 or is greater than \" 1 \". Import has been cancelled.", kStopIcon,
    u"Error In Import File"};
inline FakeMessages::Shown SequenceError(const Text& lastCard) {
  return {u"A sequence error has occured after \"card # " + lastCard +
              u"\". Import has been cancelled.",
          kStopIcon, u"Error In Import File"};
}
inline FakeMessages::Shown UnforeseenError(const Text& description) {
  return {u"An unspecified error has occurred while importing this file [" + description +
              u"], import has been cancelled.",
          kStopIcon, u"Import Error"};
}

/// A card's row of the table, the stray column included.
struct CardRow {
  Text type;
  Text text;
  Text number;
  std::vector<Text> choices = {u"", u"", u"", u""};
  Text answer;
  Text back;
  Text stray;
  friend bool operator==(const CardRow&, const CardRow&) = default;
};

inline CardRow RowOf(const ProgramState& state, int row) {
  CardRow card;
  card.type = state.deck.Cell(row, kCardType);
  card.text = state.deck.Cell(row, kCardText);
  card.number = state.deck.Cell(row, kRowNumber);
  for (int at = 0; at < 4; ++at)
    card.choices[static_cast<std::size_t>(at)] = state.deck.Cell(row, kChoiceA + at);
  card.answer = state.deck.Cell(row, kAnswer);
  card.back = state.deck.Cell(row, kBackText);
  card.stray = state.deck.Cell(row, kStray);
  return card;
}

inline std::ostream& operator<<(std::ostream& stream, const CardRow& card) {
  stream << "[" << ToUtf8(card.type) << "|" << ToUtf8(card.text) << "|" << ToUtf8(card.number);
  for (const Text& choice : card.choices) stream << "|" << ToUtf8(choice);
  return stream << "|" << ToUtf8(card.answer) << "|" << ToUtf8(card.back) << "]";
}

/// Imports of texts, one after the other in one run of the program, without a window.
struct ImportFixture {
  MemoryFiles files;
  FakeMessages messages;
  ProgramState state;
  FileNumber fileNumber{files};
  std::vector<int> totals;      ///< what the card on show was told
  std::vector<DeckKind> shown;  ///< decks that were brought up

  ImportContext Context() {
    return {state,
            fileNumber,
            messages,
            CodePage::Western(),
            {2026, 1, 5},
            [this](std::int16_t cards) { totals.push_back(cards); },
            [this](DeckKind kind) { shown.push_back(kind); }};
  }
  void Extended(std::string bytes) {
    files.Put(kTextPath, std::move(bytes));
    ImportExtended(kTextPath, Context());
  }
  void Standard(std::string bytes) {
    files.Put(kTextPath, std::move(bytes));
    ImportStandard(kTextPath, Context());
  }

  /// True where the import has left no card, and no deck was brought up.
  [[nodiscard]] bool Dropped() const { return shown.empty() && !state.deck.changed && Empty(); }
  /// True where rows 0 to 200 are absent, and those of cards blank.
  [[nodiscard]] bool Empty() const {
    if (state.deck.cardPresent.At(kInfoRow) != 0) return false;
    for (int row = 1; row <= kMostCards; ++row) {
      if (state.deck.cardPresent.At(row) != 0 || RowOf(state, row) != CardRow()) return false;
    }
    return true;
  }
};

}  // namespace tessara::test
