#pragma once

#include <string_view>

namespace tessara {

/// What a format is written to, piece by piece. Raises what its file raises.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void Write(std::string_view bytes) = 0;
};

}  // namespace tessara
