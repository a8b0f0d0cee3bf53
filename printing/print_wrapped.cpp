#include "printing/print_wrapped.h"

#include "base/conversion.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Twips kept free at the bottom of a page.
constexpr double kBottomReserve = 1000;

void BeginPageIfNearBottom(const Text& text, PrintSurface& surface, std::int16_t& lastY) {
  if (surface.PageHeight() - kBottomReserve > surface.TextHeight(text) + lastY) return;
  surface.NewPage();
  lastY = 0;
}

void PrintTrimmed(const Text& line, PrintSurface& surface, std::int16_t& lastY) {
  surface.PrintLine(Text(Trimmed(line)));
  lastY = IntegerOf(surface.CurrentY());
}

/// The line up to its last blank, that one included.
Text UpToLastBlank(const Text& line) {
  const auto blank = line.rfind(u' ');
  if (blank == Text::npos) throw RunTimeError(ErrorNumber::kInvalidProcedureCall);
  return line.substr(0, blank + 1);
}

}  // namespace

Text PrintWrapped(const Text& text, PrintSurface& surface, std::int16_t& lastY) {
  BeginPageIfNearBottom(text, surface, lastY);
  if (surface.TextWidth(text) <= surface.PageWidth()) {
    PrintTrimmed(text, surface, lastY);
    return {};
  }
  Text buffer;
  std::size_t start = 0;
  std::size_t count = 1;
  // After a break behind the very last character the line stands in the buffer and prints again.
  while (start + count <= text.size()) {
    buffer = text.substr(start, count);
    if (surface.TextWidth(buffer) <= surface.PageWidth()) {
      ++count;
      continue;
    }
    buffer = UpToLastBlank(buffer);
    PrintTrimmed(buffer, surface, lastY);
    start += buffer.size();
    count = 1;
  }
  PrintTrimmed(buffer, surface, lastY);
  return {};
}

}  // namespace tessara
