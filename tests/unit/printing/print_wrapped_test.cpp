#include "printing/print_wrapped.h"

#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "tests/support/fakes/recording_print_surface.h"

namespace tessara {
namespace {

using Calls = std::vector<std::string>;

/// A page ten characters wide.
struct Page {
  test::RecordingPrintSurface surface;
  std::int16_t lastY = 0;

  Page() { surface.pageWidth = 1000; }
  Calls Wrap(const Text& text) {
    const Text result = PrintWrapped(text, surface, lastY);
    CHECK(result.empty());
    return surface.record.Take();
  }
};

TEST_CASE("a wrapped text is broken at blanks and each line is trimmed") {
  struct Case {
    const char* what;
    Text text;
    Calls lines;
  };
  const Case cases[] = {
      {"an empty text is an empty line", u"", {"Line "}},
      {"a text that fits stays on one line, trimmed", u"  ab cd ", {"Line ab cd"}},
      {"a text of exactly the page's width fits", u"0123456789", {"Line 0123456789"}},
      {"the blank at the break is dropped", u"01234 6789a bcd", {"Line 01234", "Line 6789a bcd"}},
      {"a blank just over the edge breaks there",
       u"0123456789 bcd",
       {"Line 0123456789", "Line bcd"}},
      {"the rest is measured again from its start",
       u"aaa bbb ccc ddd eee fff",
       {"Line aaa bbb", "Line ccc ddd", "Line eee fff"}},
      {"blanks at the start of a later line go",
       u"0123456789    bcd",
       {"Line 0123456789", "Line bcd"}},
      {"a line of blanks alone is an empty line",
       u"0123456789             b",
       {"Line 0123456789", "Line ", "Line b"}},
      {"a break behind the last character prints the last line twice",
       u"0123456789 ",
       {"Line 0123456789", "Line 0123456789"}},
      {"a text with line breaks that fits is printed as it stands",
       u"0123456789\r\nabc",
       {"Line 0123456789\r\nabc"}},
      {"each line of a text with line breaks counts alone",
       u"ab cd\r\n0123456 89 xyz",
       {"Line ab cd\r\n0123456 89", "Line xyz"}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    Page page;
    CHECK(page.Wrap(c.text) == c.lines);
  }
}

TEST_CASE("a run without a blank that is wider than the page raises error 5") {
  for (const TextView text : {u"0123456789a", u"ab 0123456789a", u"0123456789a bc"}) {
    Page page;
    try {
      page.Wrap(Text(text));
      FAIL("no error");
    } catch (const RunTimeError& error) {
      CHECK(error.Number() == ErrorNumber::kInvalidProcedureCall);
    }
  }
}

TEST_CASE("the position after the last line is kept as a whole number") {
  Page page;
  page.surface.y = 300.5;
  page.Wrap(u"aaa bbb ccc");
  CHECK(page.lastY == 700);
  page.surface.y = 301.5;
  page.Wrap(u"aaa");
  CHECK(page.lastY == 502);
}

TEST_CASE("the text begins a new page where it would come within 1000 twips of the bottom") {
  struct Case {
    std::int16_t before;
    Text text;
    bool newPage;
  };
  // The page is 15000 high, a line 200.
  const Case cases[] = {
      {13799, u"abc", false},
      {13800, u"abc", true},
      {13599, u"a\r\nb", false},
      {13600, u"a\r\nb", true},
      // The whole text counts as the lines that it has, not as those that it will take.
      {13799, u"aaa bbb ccc ddd eee fff", false},
  };
  for (const Case& c : cases) {
    CAPTURE(c.before);
    Page page;
    page.lastY = c.before;
    page.surface.y = c.before;
    const Calls calls = page.Wrap(c.text);
    CHECK((calls.front() == "New page") == c.newPage);
    if (c.newPage) CHECK(page.lastY == page.surface.TextHeight(c.text));
  }
}

TEST_CASE("the page test comes once and before the error of a run that is too wide") {
  Page page;
  page.lastY = 14000;
  CHECK_THROWS_AS(page.Wrap(u"0123456789abc"), RunTimeError);
  CHECK(page.surface.record.calls == Calls{"New page"});
  CHECK(page.lastY == 0);
}

TEST_CASE("a failing surface leaves the position of the last line that was written") {
  Page page;
  page.surface.record.FailAt("Line", ErrorNumber::kPrinterError, 2);
  CHECK_THROWS_AS(page.Wrap(u"aaa bbb ccc ddd"), RunTimeError);
  CHECK(page.lastY == 200);
}

}  // namespace
}  // namespace tessara
