#pragma once

#include <unistd.h>

namespace tessara::test {

/// The number of the next file that is opened: the same again where nothing was left open.
inline int LowestFreeDescriptor() {
  const int lowest = dup(STDIN_FILENO);
  close(lowest);
  return lowest;
}

}  // namespace tessara::test
