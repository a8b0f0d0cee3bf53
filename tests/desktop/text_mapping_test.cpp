#include "adapters/qt/text/text_mapping.h"

#include <doctest/doctest.h>

#include "adapters/qt/text/qt_text.h"

using namespace tessara;

TEST_CASE("Shown text and the form's text are each other's") {
  for (const Text& text : {Text(u""), Text(u"a\r\nb"), Text(u"\r\r\n\n"), Text(u"\0\x1F\x7F", 3),
                           Text(u"\t\u00A0\u0081\u009F"), Text(u"\u2029\uFDD0\uFDD1"),
                           Text(u"\uE001\uFEFF\xD83D\xDC00\xD83D\xDC9F")}) {
    CHECK(TextOfShown(ShownText(text, true), true) == text);
    CHECK(TextOfShown(ShownText(text, false), false) == text);
    CHECK(ShownText(text, false).size() == static_cast<qsizetype>(text.size()));
  }
}

TEST_CASE("A change is told where the cursor says that it was made") {
  struct Case {
    const char* before;
    const char* after;
    int cursor;
    int place, removed;
    const char* inserted;
  };
  const Case cases[] = {
      {"", "a", 1, 0, 0, "a"},         {"aaa", "aaaa", 2, 1, 0, "a"},
      {"aaa", "aa", 1, 1, 1, ""},      {"abc", "abcXbc", 4, 1, 0, "bcX"},
      {"abc", "abc", 3, 3, 0, ""},     {"abc", "", 0, 0, 3, ""},
      {"one two", "one", 3, 3, 4, ""}, {"abcd", "axd", 2, 1, 2, "x"},
      {"abc", "abXc", 99, 2, 1, "Xc"},
  };
  for (const Case& test : cases) {
    CAPTURE(test.before);
    CAPTURE(test.after);
    const ShownEdit edit = ChangeBetween(test.before, test.after, test.cursor);
    CHECK(edit.place == test.place);
    CHECK(edit.removed == test.removed);
    CHECK(edit.inserted.toStdString() == test.inserted);
  }
}

TEST_CASE("A change takes pairs of surrogates whole") {
  const QString rat = QStringLiteral("\U0001F400");
  const QString mouse = QStringLiteral("\U0001F401");
  const ShownEdit changed = ChangeBetween("a" + rat, "a" + mouse, 3);
  CHECK(changed.place == 1);
  CHECK(changed.removed == 2);
  CHECK(changed.inserted == mouse);
  const QString bear = QStringLiteral("\U0001F800");  // another first half
  const ShownEdit before = ChangeBetween(rat + "a", bear + "a", 2);
  CHECK(before.place == 0);
  CHECK(before.removed == 2);
  CHECK(UserChange(u"", rat, 2, false).inserted == u"\xD83D\xDC00");
}

TEST_CASE("A change behind line breaks counts both their characters") {
  const TextEdit typed = UserChange(u"a\r\nb\r\nc", QStringLiteral("a\nb\nXc"), 5, true);
  CHECK(typed.place == 6);
  CHECK(typed.removed == 0);
  CHECK(typed.inserted == u"X");
  const TextEdit joined = UserChange(u"a\r\nb", QStringLiteral("ab"), 1, true);
  CHECK(joined.place == 1);
  CHECK(joined.removed == 2);
  const TextEdit broken = UserChange(u"ab", QStringLiteral("a\nb"), 2, true);
  CHECK(broken.inserted == u"\r\n");
}
