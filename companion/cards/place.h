#pragma once

#include <cstddef>
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

}  // namespace tessara
