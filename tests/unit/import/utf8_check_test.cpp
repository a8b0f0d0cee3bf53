#include "import/utf8_check.h"

#include <doctest/doctest.h>
#include <string>

namespace tessara::test {

namespace {

struct Case {
  std::string what;
  std::string_view bytes;
  bool wellFormed;
};

const Case kCases[] = {
    {"nothing", "", true},
    {"ASCII", "abc\r\n", true},
    {"two bytes, lowest", "\xC2\x80", true},
    {"two bytes, highest", "\xDF\xBF", true},
    {"three bytes, lowest", "\xE0\xA0\x80", true},
    {"the last before the surrogates", "\xED\x9F\xBF", true},
    {"three bytes, highest", "\xEF\xBF\xBF", true},
    {"four bytes, lowest", "\xF0\x90\x80\x80", true},
    {"four bytes, highest", "\xF4\x8F\xBF\xBF", true},
    {"a continuation without a lead", "\x80", false},
    {"two bytes, overlong", "\xC1\xBF", false},
    {"three bytes, overlong", "\xE0\x9F\xBF", false},
    {"four bytes, overlong", "\xF0\x8F\xBF\xBF", false},
    {"a surrogate", "\xED\xA0\x80", false},
    {"beyond the last character", "\xF4\x90\x80\x80", false},
    {"no lead at all", "\xF5\x80\x80\x80", false},
    {"a lead and a letter", "\xC3z", false},
    {"a lead and a lead", "\xE2\xE2\x80\x80", false},
    {"cut after one byte", "ab\xE2", false},
    {"cut after two bytes", "ab\xE2\x82", false},
    {"a code page letter", "na\xEFve", false},
};

}  // namespace

TEST_CASE("bytes are UTF-8 where every character is whole and in its shortest form") {
  for (const Case& c : kCases) {
    CAPTURE(c.what);
    Utf8Check check;
    check.Feed(c.bytes);
    CHECK(check.IsWellFormed() == c.wellFormed);
  }
}

TEST_CASE("the size of the blocks makes no difference") {
  for (const Case& c : kCases) {
    CAPTURE(c.what);
    Utf8Check check;
    for (std::size_t at = 0; at < c.bytes.size(); ++at) check.Feed(c.bytes.substr(at, 1));
    CHECK(check.IsWellFormed() == c.wellFormed);
  }
}

TEST_CASE("a character that is cut off can still become whole, a broken one can't") {
  Utf8Check cut;
  cut.Feed("\xE2\x82");
  CHECK_FALSE(cut.IsBroken());
  cut.Feed("\xAC");
  CHECK(cut.IsWellFormed());
  Utf8Check broken;
  broken.Feed("\xE2z");
  broken.Feed("plain");
  CHECK(broken.IsBroken());
}

TEST_CASE("only a byte beyond ASCII makes a text other than ASCII") {
  Utf8Check check;
  check.Feed("\x7F");
  CHECK_FALSE(check.HasNonAscii());
  check.Feed("\xC3\xA4");
  CHECK(check.HasNonAscii());
}

}  // namespace tessara::test
