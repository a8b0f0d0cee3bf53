#include "import/import_common.h"

#include <doctest/doctest.h>

#include "tests/unit/import/import_desk.h"

namespace tessara::test {

TEST_CASE("an imported deck gets the information of a new one") {
  ProgramState state;
  state.DeckDate = u"kept";
  state.DeckTypeName = u"kept";
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
    CHECK(state.Cell(kInfoRow, column) == cells[column]);
  }
  CHECK(state.CardPresent.At(kInfoRow) == 1);
  CHECK(state.DeckTitle == u"Enter Title Here");
  CHECK(state.DeckAuthor == u"Your Name Here");
  CHECK(state.DeckDescription == u"Deck Description Here");
  CHECK(state.DeckDate == u"kept");
  CHECK(state.DeckTypeName == u"kept");
}

TEST_CASE("abandoning an import drops the cards and keeps the count and the standard numbers") {
  ProgramState state;
  FillDeck(state, 3);
  state.ImportCardNumber = 4;
  state.ImportPrevCard = 3;
  state.ImportStdCard = 6;
  state.ImportStdPrev = 5;
  state.ImportLastLetter = u"B";
  AbandonImport(state);
  CHECK_FALSE(state.HasCards());
  CHECK(state.CardPresent.At(0) == 0);
  CHECK(state.CardCount == 3);
  CHECK(state.ImportCardNumber == 0);
  CHECK(state.ImportPrevCard == 0);
  CHECK(state.ImportStdCard == 6);
  CHECK(state.ImportStdPrev == 5);
  CHECK(state.ImportLastLetter == u"B");
}

TEST_CASE("a file that can't be opened or read is an error that the readers tell") {
  for (const auto operation : {MemoryFiles::Operation::kOpen, MemoryFiles::Operation::kRead}) {
    ImportDesk desk;
    desk.files.fault = [&](MemoryFiles::Operation at, const Text&) {
      return at == operation ? std::optional(ErrorNumber::kDeviceIo) : std::nullopt;
    };
    desk.Extended(Lines({"EXT", "1.Q"}));
    CHECK(desk.messages.shown == Boxes{UnforeseenError(u"Device I/O error")});
    CHECK(desk.fileNumber.IsOpen() == (operation == MemoryFiles::Operation::kRead));
  }
}

}  // namespace tessara::test
