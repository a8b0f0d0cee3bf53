#include "companion/formats/tables/csv_format.h"

#include <algorithm>

#include "companion/formats/tables/delimited_writer.h"
#include "companion/formats/tables/table_reader.h"
#include "import/text_traits.h"

namespace tessara {

namespace {

struct SeparatorCounts {
  std::size_t commas = 0;
  std::size_t semicolons = 0;
};

bool EndsField(char character) {
  return character == ',' || character == ';';
}

/// Of the first record, outside quotation marks. A mark opens a field where one begins, and again
/// where it stands behind the mark that has closed it.
SeparatorCounts CountSeparators(std::string_view record) {
  SeparatorCounts counts;
  bool quoted = false;
  bool mayOpen = true;
  for (const char character : record) {
    if (character == '"') {
      const bool closes = quoted;
      quoted = !quoted && mayOpen;
      mayOpen = closes;
    } else if (!quoted) {
      if (character == '\r' || character == '\n') break;
      if (character == ',') ++counts.commas;
      if (character == ';') ++counts.semicolons;
      mayOpen = EndsField(character);
    }
  }
  return counts;
}

char SeparatorOf(std::string_view bytes) {
  const std::size_t start = std::min(bytes.find_first_not_of("\r\n"), bytes.size());
  const SeparatorCounts counts = CountSeparators(bytes.substr(start));
  return counts.semicolons > counts.commas ? ';' : ',';
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
