#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tessara {

/// The lines on which a tag begins, by its place in the file.
class TagLines {
 public:
  /// `tag` as it begins, "<entry".
  TagLines(std::string_view bytes, std::string_view tag);

  /// The line of the tag whose name stands at that offset; 0 where there is none.
  [[nodiscard]] std::size_t LineOf(std::ptrdiff_t nameOffset) const;

 private:
  struct Begin {
    std::size_t nameOffset;
    std::size_t line;
  };
  std::vector<Begin> begins_;  ///< in the order of the file
};

}  // namespace tessara
