#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tessara {

/// What the comment lines at the top of a file of separated fields tell: "#separator:", "#html:",
/// "#columns:", and "#NAME column:NUMBER" for a column that is no text of the card.
struct TsvHead {
  struct OtherColumn {
    std::string name;  ///< as it stands in the file
    std::size_t line;
  };

  char separator = '\t';
  bool isHtml = false;
  std::vector<std::string> columns;  ///< empty where they are not named
  std::size_t columnsLine = 0;
  /// What holds something else, by its number from 1.
  std::map<std::size_t, OtherColumn> otherColumns;

  std::size_t length = 0;    ///< of these lines, in bytes
  std::size_t nextLine = 1;  ///< the line behind them
};

[[nodiscard]] TsvHead ReadTsvHead(std::string_view bytes);

}  // namespace tessara
