#include "base/characters.h"

#include <doctest/doctest.h>

#include "base/utf8.h"

namespace tessara::test {

TEST_CASE("a character is what a reader sees as one") {
  struct Case {
    const char* what;
    Text text;
    std::size_t count;
  };
  const Case cases[] = {
      {"nothing", u"", 0},
      {"letters", u"ab\u00E9\u4E2D", 4},
      {"a letter and its marks", u"e\u0301\u0323", 1},
      {"a mark alone", u"\u0301", 1},
      {"CR LF", u"a\r\nb", 3},
      {"a pair of surrogates", u"\xD83D\xDE00", 1},
      {"lone surrogates", Text{0xDE00, u'a', 0xD83D}, 3},
      {"a syllable of Hindi with its vowel sign", u"\u0915\u093F", 1},
      {"a syllable of Thai with its tone", u"\u0E01\u0E49", 1},
      {"a syllable of Korean in parts", u"\u1112\u1161\u11AB", 1},
      {"a family of three", u"\xD83D\xDC68\u200D\xD83D\xDC69\u200D\xD83D\xDC67", 1},
      {"two flags", u"\xD83C\xDDF3\xD83C\xDDF4\xD83C\xDDF5\xD83C\xDDEA", 2},
      {"a hand in a colour", u"\xD83D\xDC4D\xD83C\xDFFD", 1},
      {"Hebrew with points", u"\u05E9\u05C1\u05B8\u05DC", 2},
      {"NUL", Text(u"a\0b", 3), 3},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(CharacterCount(c.text) == c.count);
  }
}

TEST_CASE("the front of a text ends between two characters") {
  struct Case {
    const char* what;
    Text text;
    std::size_t most;
    std::size_t units;
  };
  const Case cases[] = {
      {"nothing fits", u"ab", 0, 0},
      {"all fits", u"ab", 2, 2},
      {"there is more room", u"ab", 9, 2},
      {"between letters", u"abc", 2, 2},
      {"before a line break", u"a\r\nb", 2, 1},
      {"before a pair of surrogates", u"a\xD83D\xDE00", 2, 1},
      {"before a letter whose mark does not fit", u"ae\u0301", 2, 1},
      {"behind a letter with its mark", u"e\u0301x", 2, 2},
      {"a family is all or nothing", u"a\xD83D\xDC68\u200D\xD83D\xDC69", 5, 1},
      {"not even the first one fits", u"e\u0301\u0323", 2, 0},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(WholeCharacters(c.text, c.most).size() == c.units);
  }
}

TEST_CASE("normalization form C has one character for a letter and its mark, where there is one") {
  struct Case {
    Text text;
    Text composed;
  };
  const Case cases[] = {
      {u"", u""},
      {u"plain", u"plain"},
      {u"e\u0301", u"\u00E9"},
      {u"a\u0323\u0302", u"\u1EAD"},
      {u"x\u0301", u"x\u0301"},
      {u"\u1112\u1161\u11AB", u"\uD55C"},
      {u"\u212B", u"\u00C5"},
      {Text(u"\0e\u0301", 3), Text(u"\0\u00E9", 2)},
      {u"\uFEFF\xD83D\xDE00", u"\uFEFF\xD83D\xDE00"},
      {Text{0xDE00, u'a', 0xD83D}, u"\uFFFDa\uFFFD"},
      {Text{0xD83D, 0xD83D, 0xDE00}, u"\uFFFD\xD83D\xDE00"},
  };
  for (const Case& c : cases) CHECK(ToUtf8(Composed(c.text)) == ToUtf8(c.composed));
}

TEST_CASE("bytes are UTF-8 up to the first that is none") {
  CHECK(Utf8Length("") == 0);
  CHECK(Utf8Length("a\xC3\xA4") == 3);
  CHECK(Utf8Length("a\xC3") == 1);
  CHECK(Utf8Length("\xE4z") == 0);
  CHECK(Utf8Length({"a\0b", 3}) == 3);
}

}  // namespace tessara::test
