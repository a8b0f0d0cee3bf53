#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace tessara {

// The forms that a card's text has in the files of other programs.

/// UTF-8; what is no character becomes U+FFFD.
[[nodiscard]] std::string WellFormedUtf8(TextView text);

/// False where a half of a pair of units stands alone: it is no character.
[[nodiscard]] bool IsWellFormed(TextView text);

/// True where a carriage return or a line feed stands alone.
[[nodiscard]] bool HasLoneBreak(TextView text);

/// Reads the texts of a file that is UTF-8, with or without its signature, or UTF-16 with its byte
/// order mark, else of the code page. With the signature a byte that is no UTF-8 is one of the code
/// page.
class TextDecoder {
 public:
  TextDecoder(std::string_view file, const CodePage& codePage);
  TextDecoder(const TextDecoder&) = delete;
  TextDecoder& operator=(const TextDecoder&) = delete;

  /// The file behind its signature; as UTF-8 where it is UTF-16.
  [[nodiscard]] std::string_view Contents() const { return contents_; }
  [[nodiscard]] Text Decode(std::string_view bytes) const;
  /// True where a file with the signature of UTF-8 holds bytes of the code page.
  [[nodiscard]] bool MixesCodePages() const { return hasSignature_ && !isUtf8_; }

 private:
  std::optional<std::string> converted_;  ///< of UTF-16
  std::string_view contents_;
  const CodePage& codePage_;
  bool hasSignature_ = false;
  bool isUtf8_ = false;
};

}  // namespace tessara
