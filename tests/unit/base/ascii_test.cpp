#include "base/ascii.h"

#include <doctest/doctest.h>
#include <string>

using namespace tessara;

TEST_CASE("ASCII ends at the first byte beyond it, wherever that stands") {
  for (std::size_t length = 0; length < 40; ++length) {
    CHECK(AsciiLength(std::string(length, '\x7F')) == length);
    CHECK(AsciiLength(std::string(length, 'a') + "\x80" + std::string(20, 'b')) == length);
    CHECK(AsciiLength(std::string(length, '\0') + "\xFF") == length);
  }
}

TEST_CASE("what is moved goes behind the text and off the bytes") {
  for (std::size_t length = 0; length < 40; ++length) {
    Text text = u"before";
    const std::string bytes = std::string(length, 'a') + "\xE9 behind";
    std::string_view rest = bytes;
    MoveAscii(text, rest);
    CHECK(text == u"before" + Text(length, u'a'));
    CHECK(rest == "\xE9 behind");
  }
}
