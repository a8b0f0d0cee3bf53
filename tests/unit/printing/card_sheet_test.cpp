#include "printing/card_sheet.h"

#include <array>
#include <doctest/doctest.h>

#include "tests/support/fakes/recording_spreadsheet.h"

namespace tessara {
namespace {

struct Sheet {
  test::RecordingSpreadsheet server;
  std::shared_ptr<Worksheet> worksheet = server.Bind(u"")->ActiveSheet();
  CardSheet cards{*worksheet};

  Sheet() { server.record.Take(); }
};

using Calls = std::vector<std::string>;

TEST_CASE("each slot has a cell on the front and one behind it for each way of turning") {
  struct Case {
    std::int16_t position;
    const char* front;
    const char* mirrored;
    const char* flipped;
  };
  const Case cases[] = {
      {2, "A1", "C1", "A7"}, {3, "A3", "C3", "A5"}, {4, "A5", "C5", "A3"}, {5, "A7", "C7", "A1"},
      {6, "C1", "A1", "C7"}, {7, "C3", "A3", "C5"}, {8, "C5", "A5", "C3"}, {9, "C7", "A7", "C1"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.position);
    Sheet sheet;
    sheet.cards.PlaceFrontText(u"x", c.position);
    CHECK(sheet.server.record.Take().back() == std::string(c.front) + " = x");
    sheet.cards.PlaceBackMirrored(u"x", c.position);
    CHECK(sheet.server.record.Take().back() == std::string(c.mirrored) + " = x");
    sheet.cards.PlaceBackFlipped(u"x", c.position);
    CHECK(sheet.server.record.Take().back() == std::string(c.flipped) + " = x");
  }
}

TEST_CASE("each placement sets the fonts of its side anew before it writes") {
  Sheet sheet;
  sheet.cards.PlaceCardText(u"front", 2, u"Front", SheetTurn::kOverSide);
  CHECK(sheet.server.record.Take() ==
        Calls{"Font A1:C7 Arial", "Size A1:C7 12", "Size C6 10", "A1 = front"});
  const Calls back{"Font A1:C7 Courier New", "Size A1:C7 11", "Size C6 10"};
  sheet.cards.PlaceCardText(u"back", 2, u"Back", SheetTurn::kOverSide);
  Calls expected = back;
  expected.emplace_back("C1 = back");
  CHECK(sheet.server.record.Take() == expected);
  sheet.cards.PlaceBackFlipped(u"back", 2);
  expected.back() = "A7 = back";
  CHECK(sheet.server.record.Take() == expected);
}

TEST_CASE("where a back stands follows from how the sheet is turned") {
  Sheet sheet;
  sheet.cards.PlaceBackText(u"x", kFirstSlot, SheetTurn::kOverSide);
  CHECK(sheet.server.record.Take().back() == "C1 = x");
  sheet.cards.PlaceBackText(u"x", kFirstSlot, SheetTurn::kOverTop);
  CHECK(sheet.server.record.Take().back() == "A7 = x");
}

TEST_CASE("a position that is no slot sets the fonts and writes no cell") {
  for (const std::int16_t position : std::array<std::int16_t, 5>{-1, 0, 1, 10, 32767}) {
    CAPTURE(position);
    Sheet sheet;
    sheet.cards.PlaceFrontText(u"x", position);
    sheet.cards.PlaceBackMirrored(u"x", position);
    sheet.cards.PlaceBackFlipped(u"x", position);
    CHECK(sheet.server.record.calls.size() == 9);
    CHECK(sheet.server.cells.empty());
  }
}

TEST_CASE("a side of another name does nothing") {
  for (const TextView side : {u"front", u"BACK", u""}) {
    Sheet sheet;
    sheet.cards.PlaceCardText(u"x", 2, Text(side), SheetTurn::kOverSide);
    CHECK(sheet.server.record.calls.empty());
  }
}

TEST_CASE("clearing empties the eight card cells in order and leaves the page line") {
  Sheet sheet;
  sheet.cards.ClearCardCells();
  CHECK(sheet.server.record.calls ==
        Calls{"A1 = ", "A3 = ", "A5 = ", "A7 = ", "C1 = ", "C3 = ", "C5 = ", "C7 = "});
}

TEST_CASE("the page line stands in C6 behind the server's text prefix") {
  Sheet sheet;
  sheet.cards.WritePageLine(1, u"Front", u"VV");
  sheet.cards.WritePageLine(2, u"Front", u"^^");
  sheet.cards.WritePageLine(1, u"Back", u"");
  CHECK(sheet.server.record.calls ==
        Calls{"C6 = ' Page 1 - Front VV", "C6 = ' Page 2 - Front ^^", "C6 = ' Page 1 - Back "});
}

TEST_CASE("the text goes into its cell as it stands") {
  Sheet sheet;
  for (const TextView text :
       {u"=1+1", u"007", u"'quoted", u" blanks ", u"two\r\nlines", u"a && b"}) {
    sheet.cards.PlaceFrontText(Text(text), 2);
    CHECK(sheet.server.cells["A1"] == text);
  }
}

}  // namespace
}  // namespace tessara
