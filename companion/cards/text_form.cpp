#include "companion/cards/text_form.h"

#include <algorithm>
#include <iterator>

#include "base/characters.h"
#include "base/mostly_utf8.h"
#include "base/utf8.h"
#include "import/text_traits.h"

namespace tessara {

namespace {

/// How many units the line break at the front takes; 0 where there is none.
std::size_t BreakLength(TextView text) {
  if (text.starts_with(kLineBreak)) return kLineBreak.size();
  return text.starts_with(kCarriageReturn) || text.starts_with(kLineFeed) ? 1 : 0;
}

/// Where the bytes of a unit lie.
struct ByteOrder {
  std::string_view mark;
  std::size_t high;
};

constexpr ByteOrder kByteOrders[] = {{"\xFF\xFE", 1}, {"\xFE\xFF", 0}};

/// The texts of UTF-16 as UTF-8; half a unit at the end goes. Nothing for all else.
std::optional<std::string> FromUtf16(std::string_view file) {
  const auto* const order = std::ranges::find_if(
      kByteOrders, [file](const ByteOrder& one) { return file.starts_with(one.mark); });
  if (order == std::end(kByteOrders)) return std::nullopt;
  Text text;
  text.reserve(file.size() / 2);
  for (std::size_t at = order->mark.size(); at + 1 < file.size(); at += 2) {
    const auto high = static_cast<unsigned char>(file[at + order->high]);
    const auto low = static_cast<unsigned char>(file[at + 1 - order->high]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return WellFormedUtf8(text);
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
    : converted_(FromUtf16(file)), contents_(converted_ ? *converted_ : file), codePage_(codePage) {
  hasSignature_ = contents_.starts_with(kByteOrderMark);
  if (hasSignature_) contents_.remove_prefix(kByteOrderMark.size());
  isUtf8_ = Utf8Length(contents_) == contents_.size();
}

Text TextDecoder::Decode(std::string_view bytes) const {
  if (isUtf8_) return FromUtf8(bytes);
  return hasSignature_ ? FromMostlyUtf8(bytes, codePage_) : codePage_.Decode(bytes);
}

}  // namespace tessara
