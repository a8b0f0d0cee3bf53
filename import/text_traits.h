#pragma once

#include <string_view>

#include "deck/file_number.h"

namespace tessara {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
inline constexpr std::size_t kTextBlockSize = 65536;

/// How a text file was written, which only the whole of it tells.
struct TextTraits {
  bool hasCarriageReturn = false;
  bool hasByteOrderMark = false;
  /// It has the mark, or characters beyond ASCII and all of them well-formed.
  bool isUtf8 = false;
};

/// Looks through the file, which is open for sequential reading, in blocks and rewinds it.
/// Raises the errors of reading.
[[nodiscard]] TextTraits LookThrough(FileNumber& file);

}  // namespace tessara
