#include "companion/formats/tables/csv_format.h"

#include <algorithm>

#include "companion/formats/tables/delimited_writer.h"
#include "companion/formats/tables/table_reader.h"
#include "import/text_traits.h"

namespace tessara {

namespace {

/// Outside quotation marks.
std::ptrdiff_t CountOf(char separator, std::string_view line) {
  std::ptrdiff_t count = 0;
  bool quoted = false;
  for (const char character : line) {
    if (character == '"') quoted = !quoted;
    if (character == separator && !quoted) ++count;
  }
  return count;
}

std::string_view FirstFilledLine(std::string_view bytes) {
  const std::size_t start = std::min(bytes.find_first_not_of("\r\n"), bytes.size());
  return FirstLineOf(bytes.substr(start));
}

char SeparatorOf(std::string_view bytes) {
  const std::string_view line = FirstFilledLine(bytes);
  return CountOf(';', line) > CountOf(',', line) ? ';' : ',';
}

}  // namespace

CardSet ReadCsv(const Source& source, const Conversion& conversion) {
  const TextDecoder decoder(source.bytes, conversion.codePage);
  DelimitedReader records(decoder.Contents(), {SeparatorOf(decoder.Contents())}, source.name);
  return TableReader(source, decoder, conversion.losses).Read(records);
}

void WriteCsv(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion) {
  sink.Write(kByteOrderMark);
  const DelimitedWriter writer(sink, ",", "\r\n");
  writer.WriteNames(ColumnNamesOf(deck.kind));
  for (const SourceCard& card : deck.cards)
    writer.WriteRecord(FieldsOfCard(card, deck.kind, conversion.losses));
}

}  // namespace tessara
