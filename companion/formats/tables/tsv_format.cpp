#include "companion/formats/tables/tsv_format.h"

#include <string>

#include "companion/cards/text_form.h"
#include "companion/formats/tables/delimited_writer.h"
#include "companion/formats/tables/table_reader.h"
#include "companion/formats/tables/tsv_head.h"

namespace tessara {

namespace {

std::vector<Text> Decoded(const std::vector<std::string>& names, const TextDecoder& decoder) {
  std::vector<Text> texts;
  texts.reserve(names.size());
  for (const std::string& name : names) texts.push_back(decoder.Decode(name));
  return texts;
}

/// Where the first card's texts are the names of the columns a reader would take them for these.
bool LooksLikeNames(const CardsToWrite& deck, Losses& losses) {
  return NamedColumns(FieldsOfCard(deck.cards.front(), deck.kind, losses)).has_value();
}

/// Tells nobody.
class NoLosses : public Losses {
  void Tell(const Place&, const std::string&) override {}
};

void WriteColumnNames(const CardsToWrite& deck, ByteSink& sink) {
  sink.Write("#columns:");
  DelimitedWriter(sink, "\t", "\n").WriteNames(ColumnNamesOf(deck.kind));
}

}  // namespace

CardSet ReadTsv(const Source& source, const Conversion& conversion) {
  const TextDecoder decoder(source.bytes, conversion.codePage);
  const TsvHead head = ReadTsvHead(decoder.Contents());
  TableReader table(source, decoder, conversion.losses);
  for (const auto& [number, column] : head.otherColumns)
    table.LeaveOut(number, decoder.Decode(column.name), column.line);
  if (head.isHtml) table.TakeHtml();
  if (!head.columns.empty()) table.TakeNames(Decoded(head.columns, decoder), head.columnsLine);
  DelimitedReader records(decoder.Contents().substr(head.length), {head.separator, true},
                          source.name, head.nextLine);
  return table.Read(records);
}

void WriteTsv(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion,
              TsvComments comments) {
  NoLosses nobody;
  const bool all = comments == TsvComments::kWritten;
  if (all) sink.Write("#separator:tab\n#html:false\n");
  if (all || LooksLikeNames(deck, nobody)) WriteColumnNames(deck, sink);
  const DelimitedWriter writer(sink, "\t", "\n");
  for (const SourceCard& card : deck.cards)
    writer.WriteRecord(FieldsOfCard(card, deck.kind, conversion.losses));
}

}  // namespace tessara
