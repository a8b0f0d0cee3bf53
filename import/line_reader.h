#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "deck/file_number.h"
#include "import/text_traits.h"

namespace tessara {

/// The lines of a text file, in characters of the code page.
///
/// A line ends at CR or CR LF; in a file without any CR at LF. The end is no part of the line, and
/// a file that ends with one has no empty line behind it. UTF-8 is recognised; a character that
/// the code page lacks becomes "?". What a line has behind kLongestLine is passed over, so that a
/// file without line ends takes no more memory than that.
class LineReader {
 public:
  /// In bytes: many times what a card keeps.
  static constexpr std::size_t kLongestLine = 0x400000;

  /// The file is open for sequential reading and not read yet. Raises the errors of reading.
  LineReader(FileNumber& file, const CodePage& codePage);

  [[nodiscard]] bool AtEnd();
  /// The next line. Raises error 62 at the end of the file.
  Text ReadLine();

 private:
  bool Refill();
  void SkipLineFeed();
  [[nodiscard]] Text Decode(std::string_view bytes) const;

  FileNumber& file_;
  const CodePage& codePage_;
  TextTraits traits_;
  std::vector<char> block_;
  std::string_view rest_;  ///< what of `block_` has not been read yet
};

}  // namespace tessara
