#include <algorithm>
#include <cmath>
#include <doctest/doctest.h>

#include "tests/printing/office_fixture.h"
#include "tests/printing/server_processes.h"
#include "tests/printing/sheet_checks.h"

namespace tessara {
namespace {

using test::CheckSheets;
using test::kTolerance;
using test::OfficeFixture;
using test::PrintedPage;
using test::PrintedWord;

constexpr double kCardHeight = 58.5;

TEST_CASE("every back lies behind its front when the sheet is turned") {
  struct Case {
    int cards;
    bool flip;
  };
  const Case cases[] = {{1, true},  {1, false}, {7, false}, {8, true},
                        {9, false}, {16, true}, {17, false}};
  for (const Case& c : cases) {
    CAPTURE(c.cards);
    CAPTURE(c.flip);
    OfficeFixture fixture(c.cards);
    REQUIRE(fixture.Print(c.flip) == "PRINT");
    const std::vector<PrintedPage> pages = fixture.Pages();
    CheckSheets(pages, c.cards, c.flip);
    const bool full = c.cards % 8 == 0;
    CHECK(pages[pages.size() / 2 - 1].Has("ALL SELECTED CARDS PRINTED") != full);
    CHECK(pages.back().Has("ALL SELECTED CARDS PRINTED") != full);
    const std::string mark = c.flip ? "VV" : "^^";
    CHECK(pages.front().Has("Page 1 - Front " + mark));
    CHECK(pages.back().Has("Page " + std::to_string(pages.size() / 2) + " - Back"));
  }
}

TEST_CASE("a full deck fills 25 sheets") {
  OfficeFixture fixture(200);
  REQUIRE(fixture.Print() == "PRINT");
  CheckSheets(fixture.Pages(), 200, false);
}

TEST_CASE("all copies of a job are in one file, in the order of their printing") {
  OfficeFixture fixture(3);
  REQUIRE(fixture.Print(false, 2) == "PRINT");
  const std::vector<PrintedPage> pages = fixture.Pages();
  REQUIRE(pages.size() == 4);
  CHECK(pages[0].Has("F1"));
  CHECK_FALSE(pages[0].Has("B1"));
  CHECK(pages[1].Has("B1"));
  // The second copy's fronts are printed on what the first copy's backs have left.
  CHECK(pages[2].Has("F1"));
  CHECK(pages[2].Has("B1"));
  CHECK_FALSE(pages[3].Has("F1"));
}

TEST_CASE("the cells show the texts as they stand, but for the prefix of a text") {
  struct Case {
    Text text;
    const char* shown;
  };
  const Case cases[] = {
      {u"=1+1", "=1+1"},
      {u"007", "007"},
      {u"1/2", "1/2"},
      {u"+1", "+1"},
      {u"@x", "@x"},
      {u"'quoted", "quoted"},
      {u"''twice", "'twice"},
      {u"TRUE", "TRUE"},
      {u"1.50", "1.50"},
      {u"5/1/2026", "5/1/2026"},
      {u"=A1", "=A1"},
      {u"a<b>&c", "a<b>&c"},
      {u"\u00e9\u00df", "\u00e9\u00df"},
      {u"{=1}", "{=1}"},
      {u"50%", "50%"},
      {u"1e3", "1e3"},
  };
  constexpr int kCases = static_cast<int>(std::size(cases));
  OfficeFixture fixture(kCases);
  for (int row = 1; row <= kCases; ++row) {
    fixture.SetCard(row, cases[row - 1].text, u"B" + DecimalText(row));
  }
  REQUIRE(fixture.Print() == "PRINT");
  const std::vector<PrintedPage> pages = fixture.Pages();
  for (int row = 0; row < kCases; ++row) {
    const PrintedPage& page = pages[static_cast<std::size_t>(row / 8)];
    INFO(std::string(cases[row].shown), " in ", page.Text());
    CHECK(page.Has(cases[row].shown));
  }
}

TEST_CASE("a line break in a text is one on the card") {
  OfficeFixture fixture(1);
  fixture.SetCard(1, u"above\r\nbelow\r\n\r\nlast", u"B1");
  REQUIRE(fixture.Print() == "PRINT");
  const PrintedPage page = fixture.Pages().front();
  const double first = page.Word("above").top;
  const double line = page.Word("below").top - first;
  CHECK(line > 3);
  CHECK(line < 7);
  CHECK(std::abs(page.Word("last").top - first - 3 * line) < kTolerance);
}

TEST_CASE("a tab in a text is four blanks on the card") {
  OfficeFixture fixture(1);
  fixture.SetCard(1, u"left\tright\r\nleft2    right2", u"B1");
  REQUIRE(fixture.Print() == "PRINT");
  const PrintedPage page = fixture.Pages().front();
  const double tab = page.Word("right").left - page.Word("left").right;
  const double blanks = page.Word("right2").left - page.Word("left2").right;
  CHECK(tab > 3);
  CHECK(std::abs(tab - blanks) < kTolerance);
}

TEST_CASE(
    "a card with more lines than fit begins at its top, and its neighbours stay in the middle") {
  constexpr double kFirstRowCenter = -103.75;
  Text lines = u"first";
  for (int line = 2; line <= 20; ++line) lines += u"\r\nline" + DecimalText(line);
  OfficeFixture fixture(8);
  fixture.SetCard(1, lines, u"B1");
  REQUIRE(fixture.Print() == "PRINT");
  const PrintedPage page = fixture.Pages().front();
  const double middle = page.height / 2 + kFirstRowCenter;
  const double top = middle - kCardHeight / 2;
  CHECK(page.Word("first").top >= top - kTolerance);
  CHECK(page.Word("first").top < top + 3);
  const PrintedWord neighbour = page.Word("F5");
  CHECK(std::abs((neighbour.top + neighbour.bottom) / 2 - middle) < 2);
}

/// Text of 444 characters in words of an English text's length.
Text LongestText() {
  const Text words = u"The quick brown foxes jump over seven lazy dogs, and nobody minds; ";
  Text text;
  while (text.size() < 444) text += words;
  text.resize(443);
  return text + u".";
}

TEST_CASE("the longest text fits its card on both sides") {
  OfficeFixture fixture(8);
  for (int row = 1; row <= 8; ++row) fixture.SetCard(row, LongestText(), LongestText());
  REQUIRE(fixture.Print() == "PRINT");
  for (const PrintedPage& page : fixture.Pages()) {
    const auto ends = std::count_if(page.words.begin(), page.words.end(),
                                    [](const PrintedWord& w) { return w.text.ends_with('.'); });
    CHECK(ends == 8);
    constexpr double kRowCenters[] = {-103.75, -37.25, 37.25, 103.75};
    for (const PrintedWord& word : page.words) {
      const auto inRow = [&](double center) {
        const double middle = page.height / 2 + center;
        return word.top >= middle - kCardHeight / 2 && word.bottom <= middle + kCardHeight / 2;
      };
      const bool inCard = std::any_of(std::begin(kRowCenters), std::end(kRowCenters), inRow);
      const bool inPageLine = word.top > page.height / 2 + 66 && word.bottom < page.height / 2 + 75;
      CAPTURE(word.text);
      CHECK((inCard || inPageLine));
    }
  }
}

TEST_CASE("nothing is printed nearer to an edge than printers reach, on A4 and on Letter") {
  OfficeFixture fixture(8);
  for (int row = 1; row <= 8; ++row) fixture.SetCard(row, LongestText(), LongestText());
  REQUIRE(fixture.Print() == "PRINT");
  constexpr double kLetterWidth = 215.9;
  constexpr double kLetterHeight = 279.4;
  constexpr double kUnprintable = 6;
  for (const PrintedPage& page : fixture.Pages()) {
    const double across = std::min(page.width, kLetterWidth) / 2 - kUnprintable;
    const double down = std::min(page.height, kLetterHeight) / 2 - kUnprintable;
    for (const PrintedWord& word : page.words) {
      CHECK(word.left >= page.width / 2 - across);
      CHECK(word.right <= page.width / 2 + across);
      CHECK(word.top >= page.height / 2 - down);
      CHECK(word.bottom <= page.height / 2 + down);
    }
  }
}

TEST_CASE("a text of any characters that a deck can hold prints") {
  Text controls;
  for (char16_t character = 0; character < u' '; ++character) controls += character;
  const Text texts[] = {controls, u"\x7f\x80\x9f\xad\xa0", u"'", u" ", u"\r\n"};
  constexpr int kTexts = static_cast<int>(std::size(texts));
  OfficeFixture fixture(kTexts);
  for (int row = 1; row <= kTexts; ++row) fixture.SetCard(row, texts[row - 1], texts[row - 1]);
  CHECK(fixture.Print() == "PRINT");
  CHECK(fixture.Pages().size() == 2);
}

TEST_CASE("a job leaves no server and no file behind") {
  OfficeFixture fixture(1);
  REQUIRE(fixture.Print() == "PRINT");
  CHECK(test::ServerProcesses().empty());
  CHECK(test::FilesLeftBehind().empty());
}

}  // namespace
}  // namespace tessara
