#include "companion/formats/tables/card_columns.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/text.h"
#include "companion/cards/text_form.h"
#include "deck/answer_key.h"

namespace tessara {

namespace {

struct ColumnName {
  const char* name;
  TextView upper;
  CardColumn column;
};

constexpr std::array<ColumnName, 2> kStandardNames = {
    {{"front", u"FRONT", CardColumn::kFront}, {"back", u"BACK", CardColumn::kBack}}};
constexpr std::array<ColumnName, 6> kExtendedNames = {
    {{"question", u"QUESTION", CardColumn::kQuestion},
     {"a", u"A", CardColumn::kA},
     {"b", u"B", CardColumn::kB},
     {"c", u"C", CardColumn::kC},
     {"d", u"D", CardColumn::kD},
     {"answer", u"ANSWER", CardColumn::kAnswer}}};

/// Each column once; a second one of the name is another column.
template <class Names>
std::vector<CardColumn> ColumnsAmong(const Names& known, const std::vector<Text>& names) {
  std::vector<CardColumn> columns;
  for (const Text& name : names) {
    const Text upper = UpperCase(Trimmed(name));
    const auto found = std::find_if(known.begin(), known.end(),
                                    [&upper](const ColumnName& one) { return one.upper == upper; });
    const CardColumn column = found == known.end() ? CardColumn::kOther : found->column;
    const bool taken = std::find(columns.begin(), columns.end(), column) != columns.end();
    columns.push_back(taken ? CardColumn::kOther : column);
  }
  return columns;
}

bool Has(const std::vector<CardColumn>& columns, CardColumn column) {
  return std::find(columns.begin(), columns.end(), column) != columns.end();
}

template <class Names>
CardColumns InOrder(DeckKind kind, const Names& names) {
  CardColumns columns{kind, {}};
  for (const ColumnName& name : names) columns.columns.push_back(name.column);
  return columns;
}

Text& CellOf(DeckRecord& record, CardColumn column) {
  switch (column) {
    case CardColumn::kBack:
      return record.longText;
    case CardColumn::kA:
      return record.shortFields[0];
    case CardColumn::kB:
      return record.shortFields[1];
    case CardColumn::kC:
      return record.shortFields[2];
    case CardColumn::kD:
      return record.shortFields[3];
    case CardColumn::kAnswer:
      return record.answer;
    default:
      return record.text;
  }
}

/// Takes the answer's case, and the type that it and the choices make.
void TakeAnswer(DeckRecord& record, const Place& place, Losses& losses) {
  record.answer = UpperCase(Trimmed(record.answer));
  const bool trueFalse = IsTrueFalseKey(record.answer) && !HasChoices(record);
  if (!trueFalse && !record.answer.empty() && !IsChoiceKey(record.answer)) {
    losses.Tell(place, "its answer is none of its choices");
    record.answer.clear();
  }
  record.cardType = LetterOf(trueFalse ? CardType::kTrueFalse : CardType::kMultipleChoice);
}

std::vector<Text> StandardFields(const DeckRecord& record) {
  return {record.text, record.longText};
}

std::vector<Text> QuestionFields(const SourceCard& card, Losses& losses) {
  DeckRecord kept = card.record;
  const bool trueFalse = IsType(kept.cardType, CardType::kTrueFalse);
  if (trueFalse && HasChoices(kept)) {
    losses.Tell(card.place, "the choices of a true/false question are not kept");
    kept.shortFields = {};
  }
  const bool fits =
      trueFalse ? IsTrueFalseKey(kept.answer) : kept.answer.empty() || IsChoiceKey(kept.answer);
  if (!fits) {
    losses.Tell(card.place, kept.answer.empty()
                                ? "without an answer it is not kept as a true/false question"
                                : "its answer is none of its choices");
    kept.answer.clear();
  }
  std::vector<Text> fields = {kept.text};
  fields.insert(fields.end(), kept.shortFields.begin(), kept.shortFields.end());
  fields.push_back(kept.answer);
  return fields;
}

}  // namespace

std::vector<const char*> ColumnNamesOf(DeckKind kind) {
  std::vector<const char*> names;
  if (kind == kStandardDeck) {
    for (const ColumnName& name : kStandardNames) names.push_back(name.name);
  } else {
    for (const ColumnName& name : kExtendedNames) names.push_back(name.name);
  }
  return names;
}

std::optional<CardColumns> NamedColumns(const std::vector<Text>& names) {
  CardColumns standard{kStandardDeck, ColumnsAmong(kStandardNames, names)};
  if (Has(standard.columns, CardColumn::kFront) && Has(standard.columns, CardColumn::kBack))
    return standard;
  CardColumns extended{kExtendedDeck, ColumnsAmong(kExtendedNames, names)};
  if (Has(extended.columns, CardColumn::kQuestion) && Has(extended.columns, CardColumn::kAnswer))
    return extended;
  return std::nullopt;
}

CardColumns UnnamedColumns(std::size_t count) {
  constexpr std::size_t kMostOfStandard = 3;
  return count <= kMostOfStandard ? InOrder(kStandardDeck, kStandardNames)
                                  : InOrder(kExtendedDeck, kExtendedNames);
}

DeckRecord CardOfFields(const std::vector<Text>& fields, const CardColumns& columns,
                        const Place& place, Losses& losses) {
  DeckRecord record;
  for (std::size_t at = 0; at < std::min(fields.size(), columns.columns.size()); ++at) {
    const CardColumn column = columns.columns[at];
    if (column != CardColumn::kOther) CellOf(record, column) = WithLineBreaks(fields[at]);
  }
  if (columns.kind == kStandardDeck) {
    record.cardType = LetterOf(CardType::kText);
  } else {
    TakeAnswer(record, place, losses);
  }
  return record;
}

std::vector<Text> FieldsOfCard(const SourceCard& card, DeckKind kind, Losses& losses) {
  TellOtherKind(card, kind, losses);
  std::vector<Text> fields =
      kind == kStandardDeck ? StandardFields(card.record) : QuestionFields(card, losses);
  if (std::any_of(fields.begin(), fields.end(), HasLoneBreak))
    losses.Tell(card.place, "a carriage return or line feed of its own becomes a line break");
  if (!std::all_of(fields.begin(), fields.end(), IsWellFormed))
    losses.Tell(card.place, "halves of characters are not kept");
  return fields;
}

}  // namespace tessara
