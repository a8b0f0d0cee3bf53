#include "base/text.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("trimming removes blanks at both ends and nothing else") {
  struct Case {
    TextView text;
    TextView trimmed;
  };
  const Case cases[] = {
      {u"", u""},           {u"   ", u""},        {u"  a b  ", u"a b"},
      {u"\ta\t", u"\ta\t"}, {u" \r\n ", u"\r\n"}, {u" \u00A0 ", u"\u00A0"},
  };
  for (const Case& c : cases) CHECK(Trimmed(c.text) == c.trimmed);
}

TEST_CASE("upper case knows the letters of the single-byte code pages") {
  struct Case {
    TextView text;
    TextView upper;
  };
  const Case cases[] = {
      {u"", u""},
      {u"Std 1!", u"STD 1!"},
      {u"@[`{", u"@[`{"},
      {u"\u00E0\u00F6\u00F8\u00FE\u00FF", u"\u00C0\u00D6\u00D8\u00DE\u0178"},
      {u"\u00F7\u00DF\u00D7", u"\u00F7\u00DF\u00D7"},
      {u"\u0105\u0142\u015B\u017C", u"\u0104\u0141\u015A\u017B"},
      {u"\u0100\u0139\u0141", u"\u0100\u0139\u0141"},
      {u"\u0131i", u"II"},
      {u"\u03B1\u03C2\u03C9\u03AC\u03CC\u03CE", u"\u0391\u03A3\u03A9\u0386\u038C\u038F"},
      {u"\u0430\u044F\u0451\u0491", u"\u0410\u042F\u0401\u0490"},
  };
  for (const Case& c : cases) CHECK(UpperCase(c.text) == c.upper);
}

TEST_CASE("a whole number is written in decimal digits") {
  CHECK(DecimalText(0) == u"0");
  CHECK(DecimalText(200) == u"200");
  CHECK(DecimalText(-7) == u"-7");
}

TEST_CASE("each line break becomes CR LF, a pair one of them") {
  struct Case {
    TextView text;
    TextView broken;
  };
  for (const Case& c : {Case{u"", u""},
                        {u"a", u"a"},
                        {u"a\nb", u"a\r\nb"},
                        {u"a\rb", u"a\r\nb"},
                        {u"a\r\nb", u"a\r\nb"},
                        {u"\n\r", u"\r\n\r\n"},
                        {u"a\r\r\n", u"a\r\n\r\n"}}) {
    CHECK(WithLineBreaks(c.text) == c.broken);
  }
}

}  // namespace tessara::test
