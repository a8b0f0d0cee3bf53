#pragma once

#include <cstddef>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"
#include "deck/file/file_number.h"
#include "import/text_blocks.h"
#include "import/text_traits.h"

namespace tessara {

/// The lines of a text file: of UTF-8, with or without a byte order mark, of UTF-16 with one, or
/// else of the code page.
///
/// A line ends at CR or CR LF. Where the first one ends in a bare LF, as texts of this platform do,
/// LF ends the others too. The end is no part of the line, and a file that ends with one has no
/// empty line behind it. What a line has behind kLongestLine is passed over, so that a file without
/// line ends takes no more memory than that.
class LineReader {
 public:
  /// In bytes, of UTF-8 where the text is in UTF-16: many times what a card keeps.
  static constexpr std::size_t kLongestLine = 0x400000;

  /// The file is open for sequential reading and not read yet. Raises the errors of reading.
  LineReader(FileNumber& file, const CodePage& codePage);

  [[nodiscard]] bool AtEnd();
  /// The next line. Raises error 62 at the end of the file.
  Text ReadLine();

 private:
  bool Refill();
  [[nodiscard]] std::size_t LineEnd() const;
  void PassLineEnd(std::size_t end);
  [[nodiscard]] Text Decode(std::string_view bytes) const;

  const CodePage& codePage_;
  TextTraits traits_;
  TextBlocks blocks_;
  std::string_view rest_;  ///< what of the block has not been read yet
  bool inFirstLine_ = true;
  bool lineFeedEnds_ = true;  ///< as the first line does
};

}  // namespace tessara
