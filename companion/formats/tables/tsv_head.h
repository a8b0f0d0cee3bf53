#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessara {

/// What the comment lines at the top of a file of separated fields tell: "#separator:", "#html:",
/// "#columns:", and "#NAME column:NUMBER" for a column that is no text of the card.
struct TsvHead {
  /// A column that holds something else, from 1.
  struct OtherColumn {
    std::string name;
    std::size_t number;
    std::size_t line;
  };

  char separator = '\t';
  bool isHtml = false;
  std::vector<std::string> columns;  ///< empty where they are not named
  std::size_t columnsLine = 0;
  std::vector<OtherColumn> otherColumns;

  std::size_t length = 0;    ///< of these lines, in bytes
  std::size_t nextLine = 1;  ///< the line behind them
};

[[nodiscard]] TsvHead ReadTsvHead(std::string_view bytes);

}  // namespace tessara
