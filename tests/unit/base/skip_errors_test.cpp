#include "base/skip_errors.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("a run-time error ends the statement and nothing else") {
  int reached = 0;
  SkipErrors([&] {
    ++reached;
    throw RunTimeError(ErrorNumber::kDiskFull);
  });
  SkipErrors([&] { ++reached; });
  CHECK(reached == 2);
}

TEST_CASE("the end of the program is not skipped") {
  CHECK_THROWS_AS(SkipErrors([] { throw ProgramEnded(1); }), ProgramEnded);
}

}  // namespace tessara::test
