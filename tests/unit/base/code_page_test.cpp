#include "base/code_page.h"

#include <doctest/doctest.h>
#include <set>

#include "tests/support/every_byte.h"

namespace tessara::test {

TEST_CASE("every byte comes back as it was, whatever the code page leaves unassigned") {
  CodePage::UpperHalf greek{};
  greek[0xE1 - 0x80] = u'\u03B1';
  for (const CodePage& codePage : {CodePage::Western(), CodePage(greek), CodePage({})}) {
    const Text text = codePage.Decode(EveryByte());
    CHECK(codePage.Encode(text) == EveryByte());
    CHECK(std::set<char16_t>(text.begin(), text.end()).size() == 256);
  }
}

TEST_CASE("the western code page has its own characters below the Latin letters") {
  const CodePage& western = CodePage::Western();
  CHECK(western.Decode("\x80\x92\x9F") == u"\u20AC\u2019\u0178");
  CHECK(western.Decode("\xA0\xE9\xFF") == u"\u00A0\u00E9\u00FF");
  CHECK(western.Encode(u"\u20AC\u00E9") == "\x80\xE9");
}

TEST_CASE("an unassigned byte is a control character of the same code") {
  CHECK(CodePage::Western().Decode("\x81\x8D\x8F\x90\x9D") == u"\u0081\u008D\u008F\u0090\u009D");
}

TEST_CASE("an unassigned byte among the letters takes no letter's place") {
  const CodePage bare(CodePage::UpperHalf{});
  CHECK_FALSE(bare.Encode(u"\u00E9"));
}

TEST_CASE("a text with a character that the code page lacks has no bytes in it") {
  const CodePage& western = CodePage::Western();
  CHECK(western.Encode(u"a\u00E9\r\n") == "a\xE9\r\n");
  CHECK_FALSE(western.Encode(u"a\u0416\u00E9\r\n"));
  CHECK_FALSE(western.Encode(u"\xD83D\xDE00"));
}

}  // namespace tessara::test
