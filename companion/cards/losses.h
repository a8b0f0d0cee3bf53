#pragma once

#include <string>

#include "companion/cards/place.h"

namespace tessara {

/// Is told, at once, what of a file could not be kept.
class Losses {
 public:
  virtual ~Losses() = default;
  virtual void Tell(const Place& place, const std::string& what) = 0;
};

}  // namespace tessara
