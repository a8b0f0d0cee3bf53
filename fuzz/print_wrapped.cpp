// Any text on any page with any measure of its characters: wrapping comes to its end, prints the
// text's words in their order, or ends in one of its errors.

#include "printing/print_wrapped.h"

#include "base/run_time_error.h"
#include "fuzz/byte_source.h"
#include "fuzz/require.h"

namespace tessara::fuzz {

namespace {

/// A page on which each character has a width of its own, and a longer text may be narrower.
class RandomSurface : public PrintSurface {
 public:
  explicit RandomSurface(ByteSource& bytes) : bytes_(bytes) {
    for (double& width : widths_) width = static_cast<double>(bytes_.Below(300)) - 20;
    lineHeight_ = static_cast<double>(bytes_.Below(4000));
    pageWidth_ = static_cast<double>(bytes_.Below(20000));
    pageHeight_ = static_cast<double>(bytes_.Below(40000));
  }

  Text printed;
  int lines = 0;

  void SetDestination(const PrintDestination&) override {}
  void SetCopies(int) override {}
  void SetFontName(const Text&) override {}
  void SetFontSize(double) override {}
  void SetBold(bool) override {}
  void SetItalic(bool) override {}
  void PrintLine(const Text& text) override {
    printed += text;
    ++lines;
    y_ += lineHeight_;
  }
  void DrawLine(double, double, double, double) override {}
  [[nodiscard]] double CurrentY() const override { return y_; }
  [[nodiscard]] double PageWidth() const override { return pageWidth_; }
  [[nodiscard]] double PageHeight() const override { return pageHeight_; }
  [[nodiscard]] double TextWidth(const Text& text) const override {
    double width = 0;
    for (const char16_t character : text) width += widths_[character % std::size(widths_)];
    return width;
  }
  [[nodiscard]] double TextHeight(const Text&) const override { return lineHeight_; }
  void NewPage() override { y_ = 0; }
  void EndDocument() override {}
  void DropDocument() override {}

 private:
  ByteSource& bytes_;
  double widths_[16] = {};
  double lineHeight_ = 0;
  double pageWidth_ = 0;
  double pageHeight_ = 0;
  double y_ = 0;
};

Text WithoutBlanks(const Text& text) {
  Text words;
  for (const char16_t character : text) {
    if (character != u' ') words += character;
  }
  return words;
}

bool IsKnownError(const RunTimeError& error) {
  return error.Number() == ErrorNumber::kInvalidProcedureCall ||
         error.Number() == ErrorNumber::kOverflow;
}

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  fuzz::ByteSource bytes(data, size);
  fuzz::RandomSurface surface(bytes);
  auto lastY = static_cast<std::int16_t>(bytes.Below(65536));
  const Text text = bytes.TakeText(900);
  try {
    fuzz::Require(PrintWrapped(text, surface, lastY).empty());
  } catch (const RunTimeError& error) {
    fuzz::Require(fuzz::IsKnownError(error));
    return 0;
  }
  // Behind a break at the very last character the last line prints once more.
  const Text words = fuzz::WithoutBlanks(text);
  const Text printed = fuzz::WithoutBlanks(surface.printed);
  fuzz::Require(printed.starts_with(words));
  fuzz::Require(words.ends_with(printed.substr(words.size())));
  fuzz::Require(surface.lines <= static_cast<int>(text.size()) + 2);
  return 0;
}
