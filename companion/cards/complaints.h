#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace tessara {

/// Where something stands. A line or card of 0 is none.
struct Place {
  const std::string* file = nullptr;  ///< its name; outlives the place
  std::size_t line = 0;               ///< where the record begins; in a deck the card's number
  std::size_t card = 0;               ///< of a file whose lines and cards are not the same
};

/// The place and what is to be told of it in the form of GNU's programs: "file:line: card N: what".
/// Control characters of the file's name are made visible.
[[nodiscard]] std::string MessageAt(const Place& place, const std::string& what);

/// Is told, at once, what of a file could not be kept.
class Losses {
 public:
  virtual ~Losses() = default;
  virtual void Tell(const Place& place, const std::string& what) = 0;
};

/// A file that is not read or written, and why: nothing is written then.
class Refused : public std::runtime_error {
 public:
  Refused(const Place& place, const std::string& what)
      : std::runtime_error(MessageAt(place, what)) {}
};

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
  virtual void Report(const Place& place, Severity severity, const std::string& what) = 0;
};

}  // namespace tessara
