#include "base/line_breaks.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("each line break becomes CR LF, a pair one of them") {
  struct Case {
    TextView text;
    TextView broken;
  };
  for (const Case& c : {Case{u"", u""},
                        {u"a", u"a"},
                        {u"a\nb", u"a\r\nb"},
                        {u"a\rb", u"a\r\nb"},
                        {u"a\r\nb", u"a\r\nb"},
                        {u"\n\r", u"\r\n\r\n"},
                        {u"a\r\r\n", u"a\r\n\r\n"}}) {
    CHECK(WithLineBreaks(c.text) == c.broken);
  }
}

}  // namespace tessara::test
