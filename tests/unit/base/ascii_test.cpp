#include "base/ascii.h"

#include <algorithm>
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

TEST_CASE("a text that is ASCII is copied as far as there is room, any other is left alone") {
  for (std::size_t length = 0; length < 40; ++length) {
    std::string room(20, '.');
    const std::size_t copied = std::min(length, room.size());
    CHECK(CopiedAsAscii(Text(length, u'\x7F'), room));
    CHECK(room == std::string(copied, '\x7F') + std::string(room.size() - copied, '.'));
    for (const char16_t other : {u'\x80', u'\u0141', u'\uFF41'}) {
      std::string untouched(20, '.');
      CHECK_FALSE(CopiedAsAscii(Text(length, u'a') + other, untouched));
      CHECK(untouched == std::string(20, '.'));
    }
  }
}
