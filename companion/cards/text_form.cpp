#include "companion/cards/text_form.h"

#include "base/characters.h"
#include "base/utf8.h"
#include "import/text_traits.h"

namespace tessara {

namespace {

/// How many units the line break at the front takes; 0 where there is none.
std::size_t BreakLength(TextView text) {
  if (text.starts_with(kLineBreak)) return kLineBreak.size();
  return text.starts_with(kCarriageReturn) || text.starts_with(kLineFeed) ? 1 : 0;
}

}  // namespace

std::string WellFormedUtf8(TextView text) {
  return ToUtf8(WellFormed(text));
}

bool IsWellFormed(TextView text) {
  return WellFormed(text) == text;
}

bool HasLoneBreak(TextView text) {
  while (!text.empty()) {
    const std::size_t length = BreakLength(text);
    if (length == 1) return true;
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return false;
}

TextDecoder::TextDecoder(std::string_view file, const CodePage& codePage)
    : contents_(file), codePage_(codePage) {
  if (contents_.starts_with(kByteOrderMark)) contents_.remove_prefix(kByteOrderMark.size());
  isUtf8_ = Utf8Length(contents_) == contents_.size();
}

Text TextDecoder::Decode(std::string_view bytes) const {
  return isUtf8_ ? FromUtf8(bytes) : codePage_.Decode(bytes);
}

}  // namespace tessara
