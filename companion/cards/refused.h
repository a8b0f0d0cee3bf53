#pragma once

#include <stdexcept>

#include "companion/cards/place.h"

namespace tessara {

/// A file that is not read or written, and why: nothing is written then.
class Refused : public std::runtime_error {
 public:
  Refused(const Place& place, const std::string& what)
      : std::runtime_error(MessageAt(place, what)) {}
};

}  // namespace tessara
