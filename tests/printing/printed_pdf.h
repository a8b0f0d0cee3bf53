#pragma once

#include <string>
#include <vector>

namespace tessara::test {

/// A word on a printed page; lengths in millimetres from the top left corner.
struct PrintedWord {
  std::string text;
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

struct PrintedPage {
  double width = 0;
  double height = 0;
  std::vector<PrintedWord> words;

  /// All words in the order of the document, blanks between.
  [[nodiscard]] std::string Text() const;
  /// The word; fails the test where it is not there, or there twice.
  [[nodiscard]] PrintedWord Word(const std::string& text) const;
  [[nodiscard]] bool Has(const std::string& text) const;
};

/// Reads the pages of a PDF file with poppler's tools.
std::vector<PrintedPage> ReadPdf(const std::string& path);

}  // namespace tessara::test
