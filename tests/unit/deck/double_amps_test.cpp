#include "deck/double_amps.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("every ampersand is doubled, doubled ones too") {
  CHECK(DoubleAmps(u"").empty());
  CHECK(DoubleAmps(u"salt") == u"salt");
  CHECK(DoubleAmps(u"salt & pepper") == u"salt && pepper");
  CHECK(DoubleAmps(u"&&") == u"&&&&");
  CHECK(DoubleAmps(u"&a\r\n&") == u"&&a\r\n&&");
}

}  // namespace tessara::test
