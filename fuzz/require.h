#pragma once

#include <cstdio>
#include <cstdlib>

namespace tessara::fuzz {

/// Ends the fuzzer's run with a report where something is not as it must be.
inline void Require(bool truth, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  if (truth) return;
  std::fprintf(stderr, "%s:%d: not as it must be\n", file, line);
  std::abort();
}

}  // namespace tessara::fuzz
