#include "deck/date_text.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("a date has no leading zeros and four digits of the year") {
  CHECK(DateText({2000, 1, 5}) == u"1/5/2000");
  CHECK(DateText({2026, 12, 31}) == u"12/31/2026");
}

}  // namespace tessara::test
