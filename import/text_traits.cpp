#include "import/text_traits.h"

#include <vector>

#include "import/utf8_check.h"

namespace tessara {

namespace {

struct ByteOrderMark {
  std::string_view bytes;
  TextEncoding encoding;
};

constexpr ByteOrderMark kMarks[] = {
    {kByteOrderMark, TextEncoding::kUtf8},
    {"\xFF\xFE", TextEncoding::kUtf16Little},
    {"\xFE\xFF", TextEncoding::kUtf16Big},
};

/// Nothing at the front: the code page, and no mark.
TextTraits TraitsByMark(std::string_view front) {
  for (const ByteOrderMark& mark : kMarks) {
    if (front.starts_with(mark.bytes)) return {mark.encoding, mark.bytes.size()};
  }
  return {};
}

/// Reads on from the first block, which is at the front of the buffer.
bool IsUtf8Throughout(FileNumber& file, std::vector<char>& buffer, std::size_t size) {
  Utf8Check utf8;
  for (; size > 0 && !utf8.IsBroken(); size = file.ReadNext(buffer)) {
    utf8.Feed({buffer.data(), size});
  }
  return utf8.IsWellFormed() && utf8.HasNonAscii();
}

}  // namespace

TextTraits LookThrough(FileNumber& file) {
  std::vector<char> buffer(kTextBlockSize);
  const std::size_t size = file.ReadNext(buffer);
  TextTraits traits = TraitsByMark({buffer.data(), size});
  if (traits.markLength == 0 && IsUtf8Throughout(file, buffer, size)) {
    traits.encoding = TextEncoding::kUtf8;
  }
  file.Rewind();
  return traits;
}

}  // namespace tessara
