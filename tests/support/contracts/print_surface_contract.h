#pragma once

#include <doctest/doctest.h>

#include "machine/print_surface.h"

namespace tessara::test {

/// How many lines each text takes: CR LF, LF and CR end one.
inline void CheckLinesOfTexts(PrintSurface& surface) {
  struct Case {
    TextView text;
    int lines;
  };
  const double line = surface.TextHeight(u"x");
  for (const Case& c : {Case{u"", 1},
                        {u"a", 1},
                        {u"a\r\nb", 2},
                        {u"a\nb", 2},
                        {u"a\rb", 2},
                        {u"a\n", 2},
                        {u"a\r\n\r\nb", 3},
                        {u"a\n\nb\rc", 4}}) {
    CAPTURE(c.lines);
    CHECK(surface.TextHeight(Text(c.text)) == doctest::Approx(c.lines * line));
    const double before = surface.CurrentY();
    surface.PrintLine(Text(c.text));
    CHECK(surface.CurrentY() - before == doctest::Approx(c.lines * line));
  }
}

/// What every print surface keeps to; its destination and its font are set.
inline void CheckPrintSurfaceContract(PrintSurface& surface) {
  CHECK(surface.CurrentY() == 0);
  CHECK(surface.PageWidth() > 0);
  CHECK(surface.TextWidth(u"") == 0);
  for (const TextView text : {u"wide\r\nwider one", u"wider one\nwide", u"wide\rwider one"}) {
    CHECK(surface.TextWidth(Text(text)) == doctest::Approx(surface.TextWidth(u"wider one")));
  }
  CheckLinesOfTexts(surface);
  surface.NewPage();
  CHECK(surface.CurrentY() == 0);
  const double line = surface.TextHeight(u"x");
  const int lines = static_cast<int>(surface.PageHeight() / line);
  for (int at = 0; at < lines; ++at) surface.PrintLine(u"x");
  CHECK(surface.CurrentY() == doctest::Approx(lines * line));
  // The first of the two finds no room: both stand on the next page.
  surface.PrintLine(u"x\r\nx");
  CHECK(surface.CurrentY() == doctest::Approx(2 * line));
  surface.DropDocument();
  CHECK(surface.CurrentY() == 0);
  surface.PrintLine(u"x");
  surface.EndDocument();
  CHECK(surface.CurrentY() == 0);
}

}  // namespace tessara::test
