#include "shell/backdrop.h"

#include <doctest/doctest.h>

#include "tests/support/error_of.h"
#include "tests/support/fakes/test_frame.h"

namespace tessara::test {

TEST_CASE("a tile is found by its key, and one that there is none of is an error") {
  const TestFrame frame;
  CHECK(BackdropTile(u"DESERT", frame).width == 160);
  CHECK(ErrorOf([&] { return BackdropTile(kNoBackdrop, frame); }) == 35600);
  CHECK(ErrorOf([&] { return BackdropTile(u"PLAID", frame); }) == 35601);
}

}  // namespace tessara::test
