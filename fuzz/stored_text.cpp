// Any text in a field of any width, and any bytes as a field: what fits comes back, and within
// the code page it is stored as it stands.

#include "deck/file/stored_text.h"

#include "base/characters.h"
#include "fuzz/byte_source.h"
#include "fuzz/require.h"

namespace tessara::fuzz {

namespace {

/// Some bytes that mean much in a row, so that they come more often than by chance.
constexpr TextView kUnits =
    u"  e\u0301\u00E9\u00EF\u00BB\u00BF\uFEFF\u0416\u05C1\xD83D\xDE00\u200D\r\n";

Text TakeUnits(ByteSource& bytes) {
  Text text;
  while (!bytes.Empty()) {
    const std::uint8_t high = bytes.Next();
    const bool often = high < 0x40;
    text += often ? kUnits[high % kUnits.size()] : static_cast<char16_t>(high * 256 + bytes.Next());
  }
  return text;
}

std::string Field(std::string bytes, std::size_t width) {
  Require(bytes.size() <= width);
  bytes.resize(width, kBlank);
  return bytes;
}

/// The text as it comes back from a field.
Text CheckStored(const Text& text, std::size_t width, const CodePage& codePage) {
  const StoredText stored = StoreText(text, width, codePage);
  const Text read = ReadText(Field(stored.bytes, width), codePage);
  const std::size_t cut = CharactersCut(text, width, codePage);
  Require(cut > 0 || Composed(read) == Composed(Trimmed(text)));
  Require(!stored.cut.empty() || cut == 0);
  if (!stored.bytes.starts_with("\xEF")) Require(codePage.Encode(read).has_value());
  return read;
}

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  fuzz::ByteSource bytes(data, size);
  const std::size_t width = bytes.Next();
  const Text read = fuzz::CheckStored(fuzz::TakeUnits(bytes), width, CodePage::Western());
  fuzz::CheckStored(read, width, CodePage({}));
  const std::string field(reinterpret_cast<const char*>(data), size);
  fuzz::CheckStored(ReadText(field, CodePage::Western()), size, CodePage::Western());
  return 0;
}
