#include <doctest/doctest.h>
#include <random>

#include "tests/unit/import/import_fixture.h"
#include "tests/unit/import/import_text.h"

namespace tessara::test {

namespace {

/// Texts and choices by chance, the same in every run.
class Chance {
 public:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }
  /// Blanks, dots, signs, letters of the whole code page; nothing that a line could end at, or
  /// that would make a line of its own meaning.
  Text Words(int most) {
    constexpr TextView kCharacters = u"abcXYZ .,:;=*>&\"'()\u00E4\u00D8\u20AC\u0153\u2019\u0081\t";
    Text text = u"x";
    for (int left = UpTo(most); left > 0; --left) {
      text += kCharacters[static_cast<std::size_t>(UpTo(static_cast<int>(kCharacters.size()) - 1))];
    }
    return text;
  }

 private:
  std::mt19937 engine_{1};
};

int NewRow(ProgramState& state, const Text& type, const Text& text) {
  const int row = ++state.deck.cardCount;
  state.deck.cardGrid.Set(row, kCardType, type);
  state.deck.cardGrid.Set(row, kCardText, text);
  state.deck.cardGrid.Set(row, kRowNumber, DecimalText(row));
  return row;
}

void AddTextCard(ProgramState& state, Chance& chance) {
  const int row = NewRow(state, u"E", chance.Words(444));
  state.deck.cardGrid.Set(row, kBackText, chance.UpTo(9) == 0 ? u"" : chance.Words(444));
}

void AddQuestion(ProgramState& state, Chance& chance) {
  const bool trueFalse = chance.UpTo(1) == 0;
  const int row = NewRow(state, trueFalse ? u"T" : u"M", chance.Words(444));
  const TextView keys = trueFalse ? u"TF" : u"ABCD";
  for (int at = 0; !trueFalse && at < 4; ++at) {
    if (chance.UpTo(5) > 0) state.deck.cardGrid.Set(row, kChoiceA + at, chance.Words(75));
  }
  const auto key = static_cast<std::size_t>(chance.UpTo(static_cast<int>(keys.size()) - 1));
  state.deck.cardGrid.Set(row, kAnswer, Text(1, keys[key]));
}

void CheckSameCards(const ImportFixture& fixture, const ProgramState& written) {
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == written.deck.cardCount);
  for (int row = 1; row <= written.deck.cardCount; ++row) {
    CHECK(RowOf(fixture.state, row) == RowOf(written, row));
  }
}

}  // namespace

TEST_CASE("a standard deck written as a text is read back the same") {
  for (const int cards : {1, 2, 17, 200}) {
    for (const std::size_t lineLength : {40U, 1000U}) {
      ProgramState written;
      Chance chance;
      for (int card = 0; card < cards; ++card) AddTextCard(written, chance);
      ImportFixture fixture;
      fixture.Standard(ImportText::OfStandardDeck(written, lineLength));
      CheckSameCards(fixture, written);
    }
  }
}

TEST_CASE("an extended deck written as a text is read back the same") {
  for (const int cards : {1, 2, 17, 200}) {
    ProgramState written;
    Chance chance;
    for (int card = 0; card < cards; ++card) AddQuestion(written, chance);
    ImportFixture fixture;
    fixture.Extended(ImportText::OfExtendedDeck(written));
    CheckSameCards(fixture, written);
  }
}

}  // namespace tessara::test
