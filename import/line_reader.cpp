#include "import/line_reader.h"

#include <algorithm>
#include <string>

#include "base/run_time_error.h"
#include "base/utf8.h"

namespace tessara {

namespace {

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsAscii(char16_t unit) {
  return unit < 0x80;
}

/// The text with one "?" for each character that the code page lacks: two units can be one.
Text WithinCodePage(Text text, const CodePage& codePage) {
  std::size_t length = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    // Every code page holds ASCII: most characters need no look-up.
    const bool held = IsAscii(unit) || codePage.Holds(unit);
    text[length++] = held ? unit : u'?';
    if (IsHighSurrogate(unit)) ++at;
  }
  text.resize(length);
  return text;
}

}  // namespace

LineReader::LineReader(FileNumber& file, const CodePage& codePage)
    : file_(file), codePage_(codePage), traits_(LookThrough(file)), block_(kTextBlockSize) {
  // Somebody may have cut the file since.
  if (traits_.hasByteOrderMark && Refill())
    rest_.remove_prefix(std::min(rest_.size(), kByteOrderMark.size()));
}

bool LineReader::Refill() {
  rest_ = {block_.data(), file_.ReadNext(block_)};
  return !rest_.empty();
}

bool LineReader::AtEnd() {
  return rest_.empty() && !Refill();
}

Text LineReader::ReadLine() {
  if (AtEnd()) throw RunTimeError(ErrorNumber::kInputPastEnd);
  const char lineEnd = traits_.hasCarriageReturn ? '\r' : '\n';
  std::string line;
  do {
    const std::size_t end = rest_.find(lineEnd);
    line += rest_.substr(0, std::min(end, kLongestLine - line.size()));
    if (end != rest_.npos) {
      rest_.remove_prefix(end + 1);
      if (traits_.hasCarriageReturn) SkipLineFeed();
      break;
    }
  } while (Refill());
  return Decode(line);
}

void LineReader::SkipLineFeed() {
  if (!AtEnd() && rest_.front() == '\n') rest_.remove_prefix(1);
}

Text LineReader::Decode(std::string_view bytes) const {
  if (!traits_.isUtf8) return codePage_.Decode(bytes);
  return WithinCodePage(FromUtf8(bytes), codePage_);
}

}  // namespace tessara
