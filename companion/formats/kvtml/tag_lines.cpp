#include "companion/formats/kvtml/tag_lines.h"

#include <algorithm>

namespace tessara {

TagLines::TagLines(std::string_view bytes, std::string_view tag) {
  std::size_t line = 1;
  std::size_t counted = 0;
  for (std::size_t at = bytes.find(tag); at != bytes.npos; at = bytes.find(tag, at + 1)) {
    const std::string_view between = bytes.substr(counted, at - counted);
    line += static_cast<std::size_t>(std::count(between.begin(), between.end(), '\n'));
    counted = at;
    begins_.push_back({at + 1, line});
  }
}

std::size_t TagLines::LineOf(std::ptrdiff_t nameOffset) const {
  const auto found = std::lower_bound(
      begins_.begin(), begins_.end(), nameOffset, [](const Begin& begin, std::ptrdiff_t offset) {
        return static_cast<std::ptrdiff_t>(begin.nameOffset) < offset;
      });
  const bool there =
      found != begins_.end() && static_cast<std::ptrdiff_t>(found->nameOffset) == nameOffset;
  return there ? found->line : 0;
}

}  // namespace tessara
