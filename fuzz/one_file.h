#pragma once

#include <cstddef>
#include <cstdint>

#include "companion/formats/source_file.h"

namespace tessara::fuzz {

/// A file system with one file, of the fuzzer's bytes, under every path.
class OneFile : public tessara::OneFile {
 public:
  OneFile(const std::uint8_t* data, std::size_t size)
      : tessara::OneFile({reinterpret_cast<const char*>(data), size}) {}
};

}  // namespace tessara::fuzz
