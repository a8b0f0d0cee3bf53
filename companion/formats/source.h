#pragma once

#include <string>

#include "base/code_page.h"
#include "companion/cards/losses.h"

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

}  // namespace tessara
