#include "companion/formats/listing.h"

#include <nlohmann/json.hpp>

#include "companion/cards/text_form.h"
#include "companion/cards/visible_text.h"

namespace tessara {

namespace {

/// Keys stand in the order in which they were set.
using Json = nlohmann::ordered_json;

const char* KindName(DeckKind kind) {
  return kind == kStandardDeck ? "standard" : "extended";
}

std::string Line(const char* name, TextView text) {
  return std::string(name) + ": " + VisibleText(text) + "\n";
}

std::string ChoiceLines(const DeckRecord& record) {
  std::string lines;
  for (std::size_t at = 0; at < record.shortFields.size(); ++at) {
    const std::string letter(1, static_cast<char>('A' + at));
    if (!record.shortFields[at].empty())
      lines += Line(("   " + letter).c_str(), record.shortFields[at]);
  }
  return lines;
}

/// A deck may hold a card of the other kind.
DeckKind KindOf(const DeckRecord& record, DeckKind deckKind) {
  return DeckKindOf(record.cardType).value_or(deckKind);
}

Json ChoicesOf(const DeckRecord& record) {
  Json choices = Json::array();
  if (IsType(record.cardType, CardType::kTrueFalse) && !HasChoices(record)) return choices;
  for (const Text& choice : record.shortFields) choices.push_back(WellFormedUtf8(choice));
  return choices;
}

}  // namespace

std::string InformationText(const CardSet& set) {
  return Line("title", set.info.title) + Line("author", set.info.author) +
         Line("description", set.info.description) + Line("date", set.info.date) +
         "kind: " + KindName(set.kind) + "\ncards: " + std::to_string(set.cards.size()) + "\n";
}

std::string CardText(const DeckRecord& record, DeckKind kind, std::size_t number) {
  const std::string head = std::to_string(number) + ". " + VisibleText(record.text) + "\n";
  if (KindOf(record, kind) == kStandardDeck)
    return head + "   " + VisibleText(record.longText) + "\n";
  return head + ChoiceLines(record) + Line("   answer", record.answer);
}

std::string InformationJson(const CardSet& set) {
  return Json{{"title", WellFormedUtf8(set.info.title)},
              {"author", WellFormedUtf8(set.info.author)},
              {"description", WellFormedUtf8(set.info.description)},
              {"date", WellFormedUtf8(set.info.date)},
              {"kind", KindName(set.kind)}}
      .dump();
}

std::string CardJson(const DeckRecord& record, DeckKind kind) {
  const std::string text = WellFormedUtf8(record.text);
  if (KindOf(record, kind) == kStandardDeck)
    return Json{{"front", text}, {"back", WellFormedUtf8(record.longText)}}.dump();
  return Json{
      {"question", text}, {"choices", ChoicesOf(record)}, {"answer", WellFormedUtf8(record.answer)}}
      .dump();
}

}  // namespace tessara
