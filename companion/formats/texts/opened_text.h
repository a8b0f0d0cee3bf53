#pragma once

#include "companion/formats/source_and_sink.h"
#include "companion/formats/source_file.h"
#include "deck/file/file_number.h"
#include "import/line_reader.h"

namespace tessara {

/// The text as the program's import opens it.
class OpenedText {
 public:
  OpenedText(const Source& source, const CodePage& codePage)
      : files_(source.bytes), number_(files_), lines_(Opened(number_), codePage) {}
  OpenedText(const OpenedText&) = delete;
  OpenedText& operator=(const OpenedText&) = delete;

  [[nodiscard]] LineReader& Lines() { return lines_; }

 private:
  static FileNumber& Opened(FileNumber& number) {
    number.OpenInput(u"text");
    return number;
  }

  OneFile files_;
  FileNumber number_;
  LineReader lines_;
};

}  // namespace tessara
