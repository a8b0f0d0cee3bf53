#include "import/text_blocks.h"

#include <algorithm>

#include "base/characters.h"
#include "base/utf8.h"

namespace tessara {

namespace {

constexpr std::size_t kUnitSize = sizeof(char16_t);

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

}  // namespace

TextBlocks::TextBlocks(FileNumber& file, const TextTraits& traits)
    : file_(file), traits_(traits), block_(kTextBlockSize) {}

std::string_view TextBlocks::Next() {
  const bool utf16 =
      traits_.encoding == TextEncoding::kUtf16Little || traits_.encoding == TextEncoding::kUtf16Big;
  return utf16 ? NextOfUtf16() : Read();
}

std::string_view TextBlocks::Read() {
  std::string_view bytes(block_.data(), file_.ReadNext(block_));
  // Somebody may have cut the file since it was looked through.
  if (atFront_) bytes.remove_prefix(std::min(bytes.size(), traits_.markLength));
  const bool markAlone = atFront_ && bytes.empty();
  atFront_ = false;
  return markAlone ? Read() : bytes;
}

std::string_view TextBlocks::NextOfUtf16() {
  constexpr char16_t kReplacement = 0xFFFD;
  const std::string_view read = Read();
  const std::string bytes = begun_.append(read);
  Text units = UnitsOf(bytes);
  const bool atEnd = read.empty();
  const bool oddByte = bytes.size() % kUnitSize != 0;
  if (atEnd && oddByte) units += kReplacement;
  if (!atEnd && !units.empty() && IsHighSurrogate(units.back())) units.pop_back();
  begun_ = atEnd ? std::string() : bytes.substr(units.size() * kUnitSize);
  utf8_ = ToUtf8(WellFormed(units));
  // A block that ends in the first half of a pair, and has nothing else, is no end of the file.
  return utf8_.empty() && !atEnd ? NextOfUtf16() : std::string_view(utf8_);
}

char16_t TextBlocks::UnitOf(std::string_view pair) const {
  const bool littleEndian = traits_.encoding == TextEncoding::kUtf16Little;
  const auto low = static_cast<unsigned char>(pair[littleEndian ? 0 : 1]);
  const auto high = static_cast<unsigned char>(pair[littleEndian ? 1 : 0]);
  return static_cast<char16_t>(low | (high << 8U));
}

Text TextBlocks::UnitsOf(std::string_view bytes) const {
  Text units;
  units.reserve(bytes.size() / kUnitSize);
  for (; bytes.size() >= kUnitSize; bytes.remove_prefix(kUnitSize)) units += UnitOf(bytes);
  return units;
}

}  // namespace tessara
