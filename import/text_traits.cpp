#include "import/text_traits.h"

#include <vector>

#include "import/utf8_check.h"

namespace tessara {

TextTraits LookThrough(FileNumber& file) {
  TextTraits traits;
  Utf8Check utf8;
  std::vector<char> buffer(kTextBlockSize);
  bool first = true;
  while (const std::size_t size = file.ReadNext(buffer)) {
    const std::string_view block(buffer.data(), size);
    if (first) traits.hasByteOrderMark = block.starts_with(kByteOrderMark);
    first = false;
    if (!traits.hasCarriageReturn) traits.hasCarriageReturn = block.find('\r') != block.npos;
    utf8.Feed(block);
    if (traits.hasCarriageReturn && utf8.IsBroken()) break;
  }
  file.Rewind();
  traits.isUtf8 = traits.hasByteOrderMark || (utf8.IsWellFormed() && utf8.HasNonAscii());
  return traits;
}

}  // namespace tessara
