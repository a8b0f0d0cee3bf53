#pragma once

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "machine/print_surface.h"
#include "tests/support/call_record.h"

namespace tessara::test {

/// A print surface that keeps every call but the questions. All characters are equally wide and
/// all lines equally high, whatever the font.
class RecordingPrintSurface : public PrintSurface {
 public:
  static constexpr double kCharacterWidth = 100;
  static constexpr double kLineHeight = 200;

  CallRecord record;
  double pageWidth = 4000;
  double pageHeight = 15000;
  double y = 0;
  std::vector<int> jobs;    ///< pages of each document that has ended
  std::set<Text> noQueues;  ///< names of queues that there are not

  void SetDestination(const PrintDestination& destination) override {
    record.Add("Destination " + DestinationName(destination));
    queue_ = destination.printer;
  }
  void SetCopies(int copies) override { record.Add("Copies " + Number(copies)); }
  void SetFontName(const Text& name) override { record.Add("Font " + ToUtf8(name)); }
  void SetFontSize(double points) override { record.Add("Size " + Number(points)); }
  void SetBold(bool bold) override { record.Add(bold ? "Bold on" : "Bold off"); }
  void SetItalic(bool italic) override { record.Add(italic ? "Italic on" : "Italic off"); }
  void PrintLine(const Text& text) override {
    record.Add("Line " + ToUtf8(text));
    if (noQueues.contains(queue_)) throw RunTimeError(ErrorNumber::kPrinterError);
    for (std::size_t line = 0; line < Lines(text).size(); ++line) {
      if (y + kLineHeight > pageHeight) TurnPage();
      y += kLineHeight;
    }
  }
  void DrawLine(double x1, double y1, double x2, double y2) override {
    record.Add("Rule " + Number(x1) + " " + Number(y1) + " " + Number(x2) + " " + Number(y2));
  }
  [[nodiscard]] double CurrentY() const override { return y; }
  [[nodiscard]] double PageWidth() const override { return pageWidth; }
  [[nodiscard]] double PageHeight() const override { return pageHeight; }
  [[nodiscard]] double TextWidth(const Text& text) const override {
    std::size_t widest = 0;
    for (const Text& line : Lines(text)) widest = std::max(widest, line.size());
    return kCharacterWidth * static_cast<double>(widest);
  }
  [[nodiscard]] double TextHeight(const Text& text) const override {
    return kLineHeight * static_cast<double>(Lines(text).size());
  }
  void NewPage() override {
    record.Add("New page");
    TurnPage();
  }
  void EndDocument() override {
    record.Add("End");
    jobs.push_back(page_);
    StartAnew();
  }
  void DropDocument() override {
    record.Add("Drop");
    StartAnew();
  }

 private:
  void TurnPage() {
    ++page_;
    y = 0;
  }
  void StartAnew() {
    page_ = 1;
    y = 0;
  }
  static std::string Number(double value) {
    std::ostringstream stream;
    stream << value;
    return stream.str();
  }
  /// CR LF, LF and CR end a line.
  static std::vector<Text> Lines(const Text& text) {
    std::vector<Text> lines(1);
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (text[at] != kCarriageReturn && text[at] != kLineFeed) {
        lines.back() += text[at];
      } else {
        if (text.compare(at, kLineBreak.size(), kLineBreak) == 0) ++at;
        lines.emplace_back();
      }
    }
    return lines;
  }

  Text queue_;
  int page_ = 1;
};

}  // namespace tessara::test
