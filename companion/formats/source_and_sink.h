#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"
#include "companion/cards/complaints.h"

namespace tessara {

/// A file that was read whole. It outlives the places that name it.
struct Source {
  std::string name;  ///< for messages
  std::string bytes;
};

/// What every reader and writer of a format is given.
struct Conversion {
  const CodePage& codePage;
  Losses& losses;
};

/// What a format is written to, piece by piece. Raises what its file raises.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void Write(std::string_view bytes) = 0;
};

}  // namespace tessara
