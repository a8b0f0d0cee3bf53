#include "platform/text.h"

#include <doctest/doctest.h>
#include <string>

#include "platform/code_page.h"
#include "platform/run_time_error.h"

namespace tessara::test {

TEST_CASE("trimming removes blanks at both ends and nothing else") {
  CHECK(Trimmed(u"  a b  ") == u"a b");
  CHECK(Trimmed(u"\ta\r\n") == u"\ta\r\n");
  CHECK(Trimmed(u"\u00a0a\u00a0") == u"\u00a0a\u00a0");
  CHECK(Trimmed(u"    ").empty());
  CHECK(Trimmed(u"").empty());
}

TEST_CASE("upper case knows the letters of the code pages") {
  CHECK(UpperCase(u"ext*>f") == u"EXT*>F");
  CHECK(UpperCase(u"äöüéñþÿ÷ß") == u"ÄÖÜÉÑÞŸ÷ß");
  CHECK(UpperCase(u"ąčžő") == u"ĄČŽŐ");
  CHECK(UpperCase(u"жяё") == u"ЖЯЁ");
  CHECK(UpperCase(u"αω") == u"ΑΩ");
}

TEST_CASE("UTF-8 goes both ways without loss, broken bytes included") {
  const std::string samples[] = {
      "plain",     "caf\xC3\xA9",  "\xF0\x9F\x82\xA1 card", "\xFF\xFE", "\xC3",
      "a\xE2\x82", "\xED\xA0\x80", std::string("\0x", 2),   "\xC0\x80"};
  for (const std::string& bytes : samples) CHECK(ToUtf8(FromUtf8(bytes)) == bytes);
  CHECK(FromUtf8("\xF0\x9F\x82\xA1").size() == 2);
  CHECK(FromUtf8("\xFF") == Text{0xDCFF});
}

TEST_CASE("every byte of the code page comes back as it was") {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const CodePage& western = CodePage::Western();
  CHECK(western.Encode(western.Decode(all)) == all);
  CHECK(western.Decode("\x80\x81\xE9") == u"\u20ac\u0081\u00e9");
}

TEST_CASE("a character that the code page lacks becomes a question mark") {
  const CodePage& western = CodePage::Western();
  CHECK(western.Encode(u"a\u4e2d\u03b1b") == "a??b");
  CHECK(western.Representable(u"\u20ac\u4e2d") == u"\u20ac?");
  CHECK(western.Holds(u'\u20ac'));
  CHECK_FALSE(western.Holds(u'\u4e2d'));
}

TEST_CASE("run-time errors carry their classic descriptions") {
  CHECK(RunTimeError(ErrorNumber::kSubscriptOutOfRange).Description() == u"Subscript out of range");
  CHECK(RunTimeError(ErrorNumber::kFileAlreadyOpen).Description() == u"File already open");
  CHECK(RunTimeError(ErrorNumber::kInputPastEnd).Description() == u"Input past end of file");
}

}  // namespace tessara::test
