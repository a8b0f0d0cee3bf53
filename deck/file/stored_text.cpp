#include "deck/file/stored_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/characters.h"
#include "base/utf8.h"

namespace tessara {

namespace {

/// The byte order mark of UTF-8.
constexpr std::string_view kSignature = "\xEF\xBB\xBF";

/// Most of a field is blanks: they go in long strides.
std::string_view WithoutBlanksBehind(std::string_view bytes) {
  constexpr std::string_view kStride = "        ";
  while (bytes.ends_with(kStride)) bytes.remove_suffix(kStride.size());
  while (bytes.ends_with(kBlank)) bytes.remove_suffix(1);
  return bytes;
}

/// True for bytes, without the blanks behind them, that a reader takes for UTF-8.
bool ReadsAsUtf8(std::string_view bytes) {
  return bytes.starts_with(kSignature) && Utf8Length(bytes) == bytes.size();
}

/// The front of the text in the code page. Nothing where the code page lacks a character, or where
/// a reader would take the bytes for UTF-8.
std::optional<StoredText> InCodePage(TextView text, TextView front, const CodePage& codePage) {
  std::optional<std::string> bytes = codePage.Encode(text);
  if (!bytes) return std::nullopt;
  bytes->resize(front.size());
  if (ReadsAsUtf8(WithoutBlanksBehind(*bytes))) return std::nullopt;
  return StoredText{std::move(*bytes), Text(text.substr(front.size()))};
}

bool IsSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDFFF;
}

/// Each half of a surrogate pair counts for half of its four bytes.
std::size_t Utf8Bytes(char16_t unit) {
  if (unit < 0x80) return 1;
  return unit < 0x800 || IsSurrogate(unit) ? 2 : 3;
}

/// How many units of the text come to so many bytes of UTF-8 at most.
std::size_t UnitsWithin(TextView text, std::size_t mostBytes) {
  std::size_t bytes = 0;
  const auto beyond = std::ranges::find_if(text, [&](char16_t unit) {
    bytes += Utf8Bytes(unit);
    return bytes > mostBytes;
  });
  return static_cast<std::size_t>(beyond - text.begin());
}

std::size_t LongestInUtf8(TextView text) {
  std::size_t longest = 0;
  for (const char16_t unit : text)
    longest = std::max(longest, IsSurrogate(unit) ? 2 * Utf8Bytes(unit) : Utf8Bytes(unit));
  return longest;
}

StoredText BehindSignature(TextView text, std::size_t width) {
  const std::size_t room = width - std::min(width, kSignature.size());
  const TextView front = WholeCharacters(text, UnitsWithin(text, room));
  std::string bytes = front.empty() ? std::string() : std::string(kSignature) + ToUtf8(front);
  return {std::move(bytes), Text(text.substr(front.size()))};
}

}  // namespace

StoredText StoreText(TextView text, std::size_t width, const CodePage& codePage) {
  if (auto asItStands = InCodePage(text, text.substr(0, width), codePage)) return *asItStands;
  // No load brings the blanks at its ends back: they take no room from others.
  const Text composed = Composed(Trimmed(text));
  const TextView front = WholeCharacters(composed, width);
  if (auto inCodePage = InCodePage(composed, front, codePage)) return *inCodePage;
  return BehindSignature(composed, width);
}

Text ReadText(std::string_view field, const CodePage& codePage) {
  std::string_view bytes = WithoutBlanksBehind(field);
  if (ReadsAsUtf8(bytes)) return Text(Trimmed(FromUtf8(bytes.substr(kSignature.size()))));
  while (bytes.starts_with(kBlank)) bytes.remove_prefix(1);
  return bytes.empty() ? Text() : codePage.Decode(bytes);
}

std::size_t CharactersCut(TextView text, std::size_t width, const CodePage& codePage) {
  const std::size_t last = text.find_last_not_of(u' ');
  return CharacterCount(StoreText(text.substr(0, last + 1), width, codePage).cut);
}

bool FillsField(TextView text, std::size_t width, const CodePage& codePage) {
  const StoredText stored = StoreText(text, width, codePage);
  const std::size_t longest = ReadsAsUtf8(stored.bytes) ? LongestInUtf8(text) : 1;
  return stored.bytes.size() + longest > width;
}

std::function<std::size_t(const Text&)> CutIn(std::size_t width, const CodePage& codePage) {
  return [width, &codePage](const Text& text) { return CharactersCut(text, width, codePage); };
}

}  // namespace tessara
