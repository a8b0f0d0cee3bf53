#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "companion/cards/visible_text.h"

namespace tessara::test {

TEST_CASE("what no eye sees of a text is shown as a code") {
  CHECK(VisibleText(u"a\r\nb\tc\\d") == "a\\nb\\tc\\\\d");
  CHECK(VisibleText(u"\r\n\n\r\u001B\u009B\u202E") == "\\n\\n\\r\\u001B\\u009B\\u202E");
  CHECK(VisibleText(Text(1, 0xD800) + u"\u00E9") == "\xEF\xBF\xBD\xC3\xA9");
}

TEST_CASE("a message names file, line and card in the form of GNU's programs") {
  const std::string file = "a\x1B.csv";
  CHECK(MessageAt({&file, 3, 2}, "what") == "a\\u001B.csv:3: card 2: what");
  CHECK(MessageAt({&file, 3}, "what") == "a\\u001B.csv:3: what");
  CHECK(MessageAt({&file}, "what") == "a\\u001B.csv: what");
}

}  // namespace tessara::test
