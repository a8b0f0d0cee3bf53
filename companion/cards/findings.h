#pragma once

#include <string>

#include "companion/cards/place.h"

namespace tessara {

/// What a finding means to the program that reads the file.
enum class Severity {
  kError,   ///< it does not take the file
  kLoss,    ///< something of the file gets lost
  kRemark,  ///< nothing is lost, but something is not as it should be
};

/// Is told, at once, what is wrong with a file.
class Findings {
 public:
  virtual ~Findings() = default;
  virtual void Find(const Place& place, Severity severity, const std::string& what) = 0;
};

}  // namespace tessara
