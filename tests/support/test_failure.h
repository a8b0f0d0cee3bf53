#pragma once

#include <string>

namespace tessara::test {

/// Fails a test from inside an event of the program. No exception of the standard library: such a
/// one the program would report as an error of its own.
struct TestFailure {
  std::string what;
};

}  // namespace tessara::test
