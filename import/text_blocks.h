#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "import/text_traits.h"

namespace tessara {

/// The bytes of a text file behind its byte order mark, block by block. UTF-16 comes as UTF-8, with
/// U+FFFD for each surrogate that is no part of a pair, and for a byte that is left at the end.
class TextBlocks {
 public:
  /// The file is as LookThrough has left it.
  TextBlocks(FileNumber& file, const TextTraits& traits);

  /// Empty at the end of the file. Valid until the next call. Raises the errors of reading.
  std::string_view Next();

 private:
  std::string_view Read();
  std::string_view NextOfUtf16();
  [[nodiscard]] char16_t UnitOf(std::string_view pair) const;
  [[nodiscard]] Text UnitsOf(std::string_view bytes) const;

  FileNumber& file_;
  TextTraits traits_;
  std::vector<char> block_;
  bool atFront_ = true;
  std::string begun_;  ///< bytes of UTF-16 whose unit, or pair of surrogates, is not complete
  std::string utf8_;
};

}  // namespace tessara
