#pragma once

#include <string>

namespace tessara::test {

/// The 256 bytes, in order.
inline std::string EveryByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace tessara::test
