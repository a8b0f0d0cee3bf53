#include "import/line_reader.h"

#include <algorithm>
#include <string>

#include "base/mostly_utf8.h"
#include "base/run_time_error.h"

namespace tessara {

LineReader::LineReader(FileNumber& file, const CodePage& codePage)
    : codePage_(codePage), traits_(LookThrough(file)), blocks_(file, traits_) {}

bool LineReader::Refill() {
  rest_ = blocks_.Next();
  return !rest_.empty();
}

bool LineReader::AtEnd() {
  return rest_.empty() && !Refill();
}

Text LineReader::ReadLine() {
  if (AtEnd()) throw RunTimeError(ErrorNumber::kInputPastEnd);
  std::string line;
  do {
    const std::size_t end = LineEnd();
    line += rest_.substr(0, std::min(end, kLongestLine - line.size()));
    if (end != rest_.npos) {
      PassLineEnd(end);
      break;
    }
  } while (Refill());
  return Decode(line);
}

std::size_t LineReader::LineEnd() const {
  const std::size_t lineFeed = lineFeedEnds_ ? rest_.find('\n') : rest_.npos;
  return std::min(lineFeed, rest_.substr(0, lineFeed).find('\r'));
}

void LineReader::PassLineEnd(std::size_t end) {
  const bool carriageReturn = rest_[end] == '\r';
  rest_.remove_prefix(end + 1);
  if (carriageReturn && !AtEnd() && rest_.front() == '\n') rest_.remove_prefix(1);
  if (inFirstLine_) lineFeedEnds_ = !carriageReturn;
  inFirstLine_ = false;
}

Text LineReader::Decode(std::string_view bytes) const {
  const bool inCodePage = traits_.encoding == TextEncoding::kCodePage;
  return inCodePage ? codePage_.Decode(bytes) : FromMostlyUtf8(bytes, codePage_);
}

}  // namespace tessara
