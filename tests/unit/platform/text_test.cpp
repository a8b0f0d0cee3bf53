#include "platform/text.h"

#include <doctest/doctest.h>
#include <random>

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

TEST_CASE("UTF-8 is read into units and written again") {
  struct Case {
    std::string_view bytes;
    TextView text;
  };
  const Case cases[] = {
      {"", u""},
      {"plain", u"plain"},
      {"\xC3\xA9", u"\u00E9"},
      {"\xE2\x82\xAC", u"\u20AC"},
      {"\xF0\x9F\x98\x80", u"\xD83D\xDE00"},
  };
  for (const Case& c : cases) {
    CHECK(FromUtf8(c.bytes) == c.text);
    CHECK(ToUtf8(c.text) == c.bytes);
  }
}

TEST_CASE("a byte that is no UTF-8 becomes a surrogate of its own") {
  struct Case {
    std::string_view bytes;
    Text text;
  };
  const Case cases[] = {
      {"a\x80", {u'a', 0xDC80}},
      {"\xFF", {0xDCFF}},
      {"\xC3", {0xDCC3}},
      {"\xC0\xAF", {0xDCC0, 0xDCAF}},
      {"\xED\xA0\x80", {0xDCED, 0xDCA0, 0xDC80}},
      {"\xF4\x90\x80\x80", {0xDCF4, 0xDC90, 0xDC80, 0xDC80}},
      {"\xE2\x82"
       "a",
       {0xDCE2, 0xDC82, u'a'}},
  };
  for (const Case& c : cases) {
    CHECK(FromUtf8(c.bytes) == c.text);
    CHECK(ToUtf8(c.text) == c.bytes);
  }
}

TEST_CASE("any bytes come back as they were on the way through text") {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 12, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    CHECK(ToUtf8(FromUtf8(bytes)) == bytes);
  }
}

TEST_CASE("a lone surrogate that stands for no byte becomes the replacement character") {
  CHECK(ToUtf8(Text{0xD800}) == "\xEF\xBF\xBD");
  CHECK(ToUtf8(Text{u'a', 0xDE00}) == "a\xEF\xBF\xBD");
}

}  // namespace tessara::test
