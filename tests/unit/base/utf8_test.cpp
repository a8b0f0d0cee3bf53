#include "base/utf8.h"

#include <doctest/doctest.h>
#include <random>

namespace tessara::test {

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
      {"\xF4\x8F\xBF\xBF", u"\xDBFF\xDFFF"},
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
