#include "companion/formats/texts/import_text_kind.h"

#include "companion/formats/source_file.h"
#include "import/extended_import.h"
#include "import/line_kinds.h"
#include "import/standard_import.h"

namespace tessara {

CardsReader ReaderOf(const Source& source, const CodePage& codePage) {
  OneFile files(source.bytes);
  FileNumber number(files);
  number.OpenInput(u"text");
  LineReader lines(number, codePage);
  const Text format = lines.AtEnd() ? Text() : lines.ReadLine();
  if (IsWord(format, kExtendedWord)) return ReadExtendedCards;
  return IsWord(format, kStandardWord) ? ReadStandardCards : nullptr;
}

}  // namespace tessara
