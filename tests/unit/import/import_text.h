#pragma once

#include <algorithm>
#include <string>

#include "base/code_page.h"
#include "deck/program_state.h"

namespace tessara::test {

/// Writes decks as import texts, in the code page, with CR LF.
class ImportText {
 public:
  /// Texts go into lines of at most `lineLength` characters, which the reader joins.
  static std::string OfStandardDeck(const ProgramState& state, std::size_t lineLength) {
    ImportText text;
    text.Add(u"STD");
    for (int row = 1; row <= state.deck.cardCount; ++row) {
      text.Add(DecimalText(row) + u".");
      text.AddSide(u"*>F", state.deck.Cell(row, kCardText), lineLength);
      text.AddSide(u"*>B", state.deck.Cell(row, kBackText), lineLength);
      text.Add(u"");
    }
    return text.bytes_;
  }

  static std::string OfExtendedDeck(const ProgramState& state) {
    ImportText text;
    text.Add(u"EXT");
    for (int row = 1; row <= state.deck.cardCount; ++row) {
      text.Add(DecimalText(row) + u"." + state.deck.Cell(row, kCardText));
      for (int at = 0; at < 4; ++at) text.AddChoice(at, state.deck.Cell(row, kChoiceA + at));
      text.Add(u"=" + state.deck.Cell(row, kAnswer));
      text.Add(u"");
    }
    return text.bytes_;
  }

 private:
  void Add(const Text& line) { bytes_ += CodePage::Western().Encode(line).value() + "\r\n"; }
  void AddSide(const Text& tag, TextView side, std::size_t lineLength) {
    Add(tag);
    for (; !side.empty(); side.remove_prefix(std::min(lineLength, side.size()))) {
      Add(Text(side.substr(0, lineLength)));
    }
  }
  void AddChoice(int at, const Text& choice) {
    if (!choice.empty()) Add(Text{static_cast<char16_t>(u'A' + at), u'.'} + choice);
  }

  std::string bytes_;
};

}  // namespace tessara::test
