#include "import/import_common.h"

#include <doctest/doctest.h>

#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

TEST_CASE("an imported deck gets the information of a new one") {
  ProgramState state;
  state.deck.date = u"kept";
  state.deck.typeName = u"kept";
  SetImportedDeckInfo(u"Extended", {2031, 12, 24}, state);
  const Text cells[] = {u"",
                        u"I",
                        u"",
                        u"0",
                        u"12/24/2031",
                        u"Extended",
                        u"Enter Title Here",
                        u"Your Name Here",
                        u"",
                        u"Deck Description Here"};
  for (int column = 0; column < kColumns; ++column) {
    CHECK(state.deck.Cell(kInfoRow, column) == cells[column]);
  }
  CHECK(state.deck.cardPresent.At(kInfoRow) == 1);
  CHECK(state.deck.title == u"Enter Title Here");
  CHECK(state.deck.author == u"Your Name Here");
  CHECK(state.deck.description == u"Deck Description Here");
  CHECK(state.deck.date == u"kept");
  CHECK(state.deck.typeName == u"kept");
}

TEST_CASE("abandoning an import drops the cards and keeps the count and the standard numbers") {
  ProgramState state;
  FillDeck(state, 3);
  state.import.cardNumber = 4;
  state.import.previousCard = 3;
  state.import.standardCard = 6;
  state.import.previousStandardCard = 5;
  state.import.lastLetter = u"B";
  AbandonImport(state);
  CHECK_FALSE(state.deck.HasCards());
  CHECK(state.deck.cardPresent.At(0) == 0);
  CHECK(state.deck.cardCount == 3);
  CHECK(state.import.cardNumber == 0);
  CHECK(state.import.previousCard == 0);
  CHECK(state.import.standardCard == 6);
  CHECK(state.import.previousStandardCard == 5);
  CHECK(state.import.lastLetter == u"B");
}

TEST_CASE("a file that can't be opened or read is an error that the readers tell") {
  for (const auto operation : {MemoryFiles::Operation::kOpen, MemoryFiles::Operation::kRead}) {
    ImportFixture fixture;
    fixture.files.fault = [&](MemoryFiles::Operation at, const Text&) {
      return at == operation ? std::optional(ErrorNumber::kDeviceIo) : std::nullopt;
    };
    fixture.Extended(Lines({"EXT", "1.Q"}));
    CHECK(fixture.messages.shown == Boxes{UnforeseenError(u"Device I/O error")});
    CHECK(fixture.fileNumber.IsOpen() == (operation == MemoryFiles::Operation::kRead));
  }
}

}  // namespace tessara::test
