#include "deck/file/stored_text.h"

#include <doctest/doctest.h>
#include <string>

#include "base/characters.h"
#include "base/utf8.h"
#include "tests/support/every_byte.h"

namespace tessara::test {

namespace {

constexpr std::size_t kWidth = 12;
const std::string kSignature = "\xEF\xBB\xBF";

std::string StoredIn(std::size_t width, TextView text) {
  return StoreText(text, width, CodePage::Western()).bytes;
}

Text ReadBack(std::string bytes, std::size_t width) {
  bytes.resize(width, kBlank);
  return ReadText(bytes, CodePage::Western());
}

struct StoredCase {
  const char* what;
  Text text;
  std::string bytes;
};

}  // namespace

TEST_CASE("a text within the code page is stored in it, as it stands") {
  const StoredCase cases[] = {
      {"nothing", u"", ""},
      {"letters", u"na\u00EFve \u20AC", "na\xEFve \x80"},
      {"blanks at both ends", u" a ", " a "},
      {"a line break", u"a\r\nb", "a\r\nb"},
      {"more than the field takes", u"0123456789ab\u00E9", "0123456789ab"},
      {"a line break that the end cuts in two", u"0123456789a\r\n", "0123456789a\r"},
      {"a signature before what is no UTF-8", u"\u00EF\u00BB\u00BF\u00E9", kSignature + "\xE9"},
      {"a signature behind a blank", u" \u00EF\u00BB\u00BF", " " + kSignature},
  };
  for (const StoredCase& c : cases) {
    CAPTURE(c.what);
    CHECK(StoredIn(kWidth, c.text) == c.bytes);
  }
}

TEST_CASE("a text that form C brings into the code page is stored in it") {
  const StoredCase cases[] = {
      {"a letter and its accent", u"Lome\u0301", "Lom\xE9"},
      {"a sign for a letter", u"10 \u212B", "10 \xC5"},
      {"twice as long before", u"e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301",
       "\xE9\xE9\xE9\xE9\xE9\xE9\xE9\xE9"},
      {"a line break stays whole",
       u"e\u0301"
       u"0123456789\r\n",
       "\xE9"
       "0123456789"},
  };
  for (const StoredCase& c : cases) {
    CAPTURE(c.what);
    CHECK(StoredIn(kWidth, c.text) == c.bytes);
  }
}

TEST_CASE("any other text is stored as UTF-8 in form C, behind the signature") {
  const StoredCase cases[] = {
      {"Cyrillic", u"\u0416", kSignature + "\xD0\x96"},
      {"letters of two kinds", u"\u00E9\u0416", kSignature + "\xC3\xA9\xD0\x96"},
      {"a letter and its accent beside one", u"e\u0301\u0416", kSignature + "\xC3\xA9\xD0\x96"},
      {"without the blanks at its ends", u" \u0416 ", kSignature + "\xD0\x96"},
      {"an emoji", u"\xD83D\xDE00", kSignature + "\xF0\x9F\x98\x80"},
      {"as much as fits", u"1234567\u0416", kSignature + "1234567\xD0\x96"},
      {"one byte too many", u"12345678\u0416", kSignature + "12345678"},
      {"not half an emoji", u"123456\xD83D\xDE00", kSignature + "123456"},
      {"not a letter without its mark", u"12345\u0436\u0301\u0301", kSignature + "12345"},
      {"a byte order mark stays", u"\uFEFF\u0416", kSignature + kSignature + "\xD0\x96"},
      {"a byte order mark alone", u"\uFEFF", kSignature + kSignature},
      {"a lone surrogate, which no UTF-8 has", Text{u'a', 0xDC80}, kSignature + "a\xEF\xBF\xBD"},
      {"a text that would read as another", u"\u00EF\u00BB\u00BF",
       kSignature + "\xC3\xAF\xC2\xBB\xC2\xBF"},
  };
  for (const StoredCase& c : cases) {
    CAPTURE(c.what);
    CHECK(StoredIn(kWidth, c.text) == c.bytes);
  }
}

TEST_CASE("a field without room for the signature and a character stays blank") {
  for (const std::size_t width : {std::size_t{1}, std::size_t{3}, std::size_t{4}}) {
    CHECK(StoredIn(width, u"\u0416").empty());
  }
  CHECK(StoredIn(5, u"\u0416").size() == 5);
}

TEST_CASE("a field is read as UTF-8 where it begins with the signature and is UTF-8 to its end") {
  struct Case {
    const char* what;
    std::string bytes;
    Text text;
  };
  const Case cases[] = {
      {"UTF-8", kSignature + "\xD0\x96", u"\u0416"},
      {"blanks at both ends go", kSignature + "  \xD0\x96  ", u"\u0416"},
      {"nothing behind the signature", kSignature, u""},
      {"not in form C", kSignature + "e\xCC\x81", u"e\u0301"},
      {"a byte order mark behind the signature", kSignature + kSignature + "a",
       u"\uFEFF"
       u"a"},
      {"no signature", "\xD0\x96", u"\u00D0\u2013"},
      {"a signature behind a blank", " " + kSignature, u"\u00EF\u00BB\u00BF"},
      {"a byte that is no UTF-8", kSignature + "\xD0\x96\xE9",
       u"\u00EF\u00BB\u00BF\u00D0\u2013\u00E9"},
      {"a character cut off", kSignature + "\xD0", u"\u00EF\u00BB\u00BF\u00D0"},
      {"a surrogate", kSignature + "\xED\xA0\x80", u"\u00EF\u00BB\u00BF\u00ED\u00A0\u20AC"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(ToUtf8(ReadBack(c.bytes, kWidth)) == ToUtf8(c.text));
  }
}

TEST_CASE("every text comes back in form C, and what would not is told as cut") {
  constexpr std::size_t kRoom = 24;
  const Text texts[] = {u"plain",
                        u"na\u00EFve",
                        u"\u00EF\u00BB\u00BF",
                        u"\u00EF\u00BB\u00BF\u00C3\u00A9",
                        u"\u0416\u0436",
                        u"e\u0301",
                        u"\u4E2D\u6587",
                        u"\uFEFFx",
                        u"\uFEFF",
                        u"\xD83D\xDE00",
                        u"\u05E9\u05C1",
                        u"\u0915\u093F",
                        u"\uE001\uF8FF",
                        Text(u"\0\u0416", 2)};
  for (const Text& text : texts) {
    CAPTURE(ToUtf8(text));
    const Text read = ReadBack(StoredIn(kRoom, text), kRoom);
    CHECK(ToUtf8(Composed(read)) == ToUtf8(Composed(text)));
    CHECK(CharactersCut(text, kRoom, CodePage::Western()) == 0);
  }
}

TEST_CASE("what the field has no room for is counted in characters, as a reader sees them") {
  struct Case {
    const char* what;
    Text text;
    std::size_t cut;
  };
  const Case cases[] = {
      {"all fits", u"0123456789ab", 0},
      {"one byte too many", u"0123456789abc", 1},
      {"blanks at the end don't count", u"0123456789ab   ", 0},
      {"blanks before a letter do", u"0123456789ab   c", 4},
      {"form C makes it fit",
       u"e\u0301"
       u"0123456789a",
       0},
      {"in UTF-8", u"\u0416\u0416\u0416\u0416\u0416\u0416", 2},
      {"a letter with its marks is one", u"\u0416\u0416\u0416\u0416\u0436\u0301\u0302", 1},
      {"an emoji is one", u"\u0416\u0416\u0416\u0416\xD83D\xDE00", 1},
      {"a line break is one", u"0123456789ab\r\n", 1},
      {"all of it", Text(u"\u0436") + Text(20, u'\u0301'), 1},
      {"nothing but blanks", Text(40, u' '), 0},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(CharactersCut(c.text, kWidth, CodePage::Western()) == c.cut);
  }
}

TEST_CASE("in a code page with marks of its own a text as it stands is cut at its last byte") {
  CodePage::UpperHalf upperHalf{};
  upperHalf[0x80 - 0x80] = u'\u0301';
  const CodePage vietnamese(upperHalf);
  CHECK(StoreText(u"abce\u0301", 4, vietnamese).bytes == "abce");
  CHECK(StoreText(u"abce\u0301", 5, vietnamese).bytes == "abce\x80");
}

TEST_CASE("every byte of a field without a signature comes back") {
  const std::string every = EveryByte();
  const Text text = ReadText("|" + every + "|", CodePage::Western());
  CHECK(StoredIn(444, text) == "|" + every + "|");
}

}  // namespace tessara::test
