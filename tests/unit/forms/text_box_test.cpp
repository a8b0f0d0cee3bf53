#include <doctest/doctest.h>

#include "base/utf8.h"
#include "tests/support/limited_process.h"
#include "tests/support/memory_use.h"
#include "tests/unit/forms/test_windows.h"

namespace tessara::test {

namespace {

struct EditCase {
  const char* what;
  bool multiLine;
  int limit;
  Text before;
  TextEdit edit;
  Text after;
};

}  // namespace

TEST_CASE("what the user types comes into the text by the box's rules") {
  const EditCase cases[] = {
      {"a character at the end", false, 0, u"ab", {2, 0, u"c"}, u"abc"},
      {"a replaced selection", false, 0, u"abcd", {1, 2, u"X"}, u"aXd"},
      {"a deleted selection", false, 0, u"abcd", {1, 2, u""}, u"ad"},
      {"a place beyond the end", false, 0, u"ab", {9, 9, u"c"}, u"abc"},
      {"Return in a multi-line box", true, 0, u"ab", {1, 0, u"\n"}, u"a\r\nb"},
      {"a pasted line break stays one", true, 0, u"", {0, 0, u"a\r\nb"}, u"a\r\nb"},
      {"lone carriage returns become line breaks", true, 0, u"", {0, 0, u"a\rb"}, u"a\r\nb"},
      {"several lines into a single-line box", false, 0, u"", {0, 0, u"a\r\nb"}, u"a"},
      {"a character of any script",
       true,
       0,
       u"",
       {0, 0, u"\u4e2d\xD83D\xDE00"},
       u"\u4e2d\xD83D\xDE00"},
      {"a byte order mark",
       false,
       0,
       u"a",
       {0, 0, u"\uFEFF"},
       u"\uFEFF"
       u"a"},
      {"up to the limit", false, 3, u"ab", {2, 0, u"cd"}, u"abc"},
      {"nothing over the limit", false, 3, u"abc", {1, 0, u"x"}, u"abc"},
      {"a longer text can shrink", false, 3, u"abcdef", {5, 1, u""}, u"abcde"},
      {"a longer text takes nothing more", false, 3, u"abcdef", {0, 1, u"x"}, u"bcdef"},
      {"a line break is not cut in two", true, 3, u"ab", {2, 0, u"\r\n"}, u"ab"},
      {"nor is a pair of surrogates", true, 3, u"ab", {2, 0, u"\xD83D\xDE00"}, u"ab"},
      {"nor a letter and its mark", true, 3, u"a", {1, 0, u"be\u0301"}, u"ab"},
  };
  for (const EditCase& c : cases) {
    CAPTURE(c.what);
    RulesFixture fixture;
    fixture.first->Show();
    TextBox& box = fixture.first->textBox;
    box.SetMultiLine(c.multiLine);
    box.SetText(c.before);
    box.SetMaxLength(c.limit);
    box.UserEdit(c.edit);
    CHECK(ToUtf8(box.TextOf()) == ToUtf8(c.after));
  }
}

TEST_CASE("an undo brings a text beyond the limit back, and nothing else does") {
  RulesFixture fixture;
  fixture.first->Show();
  TextBox& box = fixture.first->textBox;
  box.SetMaxLength(4);
  box.SetText(u"abcdefg");
  box.UserEdit({1, 2, u""});
  box.UserEdit({0, 5, u"x"});
  CHECK(box.TextOf() == u"x");
  box.UserEdit({0, 1, u"adefg"});
  CHECK(box.TextOf() == u"adefg");
  box.UserEdit({1, 0, u"xy"});
  CHECK(box.TextOf() == u"adefg");
  box.UserEdit({1, 0, u"bc"});
  CHECK(box.TextOf() == u"abcdefg");
  box.SetText(u"");
  box.UserEdit({0, 0, u"abcdefg"});
  CHECK(box.TextOf() == u"abcd");
}

TEST_CASE("a lowered limit does not cut the text that is there") {
  RulesFixture fixture;
  fixture.first->textBox.SetText(u"forty-one");
  fixture.first->textBox.SetMaxLength(4);
  CHECK(fixture.first->textBox.TextOf() == u"forty-one");
}

TEST_CASE("a locked or unreachable box takes no edit") {
  RulesFixture fixture;
  fixture.first->Show();
  TextBox& box = fixture.first->textBox;
  box.SetLocked(true);
  box.UserEdit({0, 0, u"x"});
  box.SetLocked(false);
  box.SetEnabled(false);
  box.UserEdit({0, 0, u"x"});
  CHECK(box.TextOf().empty());
}

TEST_CASE("the program's own texts are taken as they are") {
  RulesFixture fixture;
  const Text raw = {u'\0', u'\r', u'\n', u'\n', u'\u4e2d', u'\u00a0'};
  fixture.first->textBox.SetMaxLength(2);
  fixture.first->textBox.SetText(raw);
  CHECK(fixture.first->textBox.TextOf() == raw);
}

TEST_CASE("a paste beyond the memory ends the program with the error for that") {
  if (!kMemoryCanBeLimited) return;
  constexpr std::size_t kHuge = 100'000'000;
  constexpr long kRest = 50'000'000;
  RulesFixture fixture;
  fixture.first->Show();
  const TextEdit paste{0, 0, Text(kHuge, u'x')};
  CHECK(HoldsInProcess([&] {
    LimitMemory(AddressBytes() + kRest);
    fixture.first->textBox.UserEdit(paste);
    const auto& shown = fixture.fakes.messages.shown;
    return shown.size() == 1 && shown[0].text == u"Run-time error '7':\r\n\r\nOut of memory" &&
           fixture.windows.ExitStatus() == 1;
  }));
}

}  // namespace tessara::test
