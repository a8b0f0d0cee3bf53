#include "companion/commands/show.h"

#include "companion/commands/input.h"
#include "companion/commands/outputs.h"
#include "companion/commands/reporter.h"
#include "companion/formats/listing.h"

namespace tessara {

namespace {

void WriteText(const CardSet& set, bool withCards, ByteSink& sink) {
  if (!withCards) return sink.Write(InformationText(set));
  std::size_t number = 0;
  for (const SourceCard& card : set.cards) sink.Write(CardText(card.record, set.kind, ++number));
}

/// The object of the information, with the cards, one by one, as its last member.
void WriteJson(const CardSet& set, bool withCards, ByteSink& sink) {
  const std::string information = InformationJson(set);
  if (!withCards) return sink.Write(information + "\n");
  sink.Write(information.substr(0, information.size() - 1) + ",\"cards\":[");
  bool first = true;
  for (const SourceCard& card : set.cards) {
    sink.Write((first ? "\n" : ",\n") + CardJson(card.record, set.kind));
    first = false;
  }
  sink.Write("]}\n");
}

}  // namespace

int ShowDeck(const ShowOptions& options, const CodePage& codePage) {
  const FileFormat format = FormatOf(options.file, options.from);
  Source source = ReadInput(options.file);
  Reporter reporter;
  const CardSet set = ReadCards(format, source, {codePage, reporter});
  Outputs outputs;
  ByteSink& sink = outputs.Add(kStandardStream);
  if (options.json) {
    WriteJson(set, options.withCards, sink);
  } else {
    WriteText(set, options.withCards, sink);
  }
  outputs.Appear();
  return reporter.HasLosses() ? kNotAllKept : kDone;
}

}  // namespace tessara
