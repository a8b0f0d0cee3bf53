#pragma once

#include <cstddef>
#include <string_view>

#include "deck/file/file_number.h"

namespace tessara {

/// Of UTF-8.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
inline constexpr std::size_t kTextBlockSize = 65536;

enum class TextEncoding { kCodePage, kUtf8, kUtf16Little, kUtf16Big };

/// How a text file was written.
struct TextTraits {
  TextEncoding encoding = TextEncoding::kCodePage;
  std::size_t markLength = 0;  ///< bytes of the byte order mark at the front
};

/// By the byte order mark at the front of the file, which is open for sequential reading and not
/// read yet. Without one it is looked through in blocks: one with characters beyond ASCII, all of
/// them well-formed, is in UTF-8. Rewinds the file. Raises the errors of reading.
[[nodiscard]] TextTraits LookThrough(FileNumber& file);

}  // namespace tessara
