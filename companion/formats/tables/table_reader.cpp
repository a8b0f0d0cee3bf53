#include "companion/formats/tables/table_reader.h"

#include <algorithm>
#include <utility>

#include "companion/cards/visible_text.h"
#include "companion/formats/tables/html_text.h"

namespace tessara {

void TableReader::TakeNames(const std::vector<Text>& names, std::size_t line) {
  columns_ = NamedColumns(names);
  if (columns_) TellOtherColumns(names, line);
}

void TableReader::LeaveOut(std::size_t column, const Text& name, std::size_t line) {
  leftOut_.insert(column);
  TellColumn(name, line);
}

CardSet TableReader::Read(DelimitedReader& records) {
  if (decoder_.MixesCodePages())
    losses_.Tell({&source_.name}, "what is no UTF-8 is read in the code page");
  std::size_t line = 0;
  while (const auto record = records.Next()) {
    line = record->line;
    Take(*record);
  }
  if (records.EndsInQuotes())
    losses_.Tell({&source_.name, line, set_.cards.size()}, "a quotation mark is not closed");
  return std::move(set_);
}

void TableReader::Take(const DelimitedRecord& record) {
  if (record.isBlank) return;
  if (!columns_) {
    const std::vector<Text> names = TextsOf(record);
    TakeNames(names, record.line);
    if (columns_) return;
    TakeUnnamed(record.fieldCount);
  }
  TakeCard(record);
}

/// The columns that are left out stand between the others.
void TableReader::TakeUnnamed(std::size_t fieldCount) {
  const std::size_t others = std::min(leftOut_.size(), fieldCount);
  columns_ = UnnamedColumns(fieldCount - others);
  for (const std::size_t number : leftOut_) {
    const std::size_t place = std::min(number - 1, columns_->columns.size());
    columns_->columns.insert(columns_->columns.begin() + static_cast<std::ptrdiff_t>(place),
                             CardColumn::kOther);
  }
}

void TableReader::TakeCard(const DelimitedRecord& record) {
  set_.kind = columns_->kind;
  const Place place{&source_.name, record.line, set_.cards.size() + 1};
  if (record.fieldCount > columns_->columns.size())
    losses_.Tell(place, "what stands behind its last field is not kept");
  if (record.hasStrayMark)
    losses_.Tell(place, "a quotation mark that does not end its field is not kept");
  AddCard(set_, {CardOfFields(TextsOf(record), *columns_, place, losses_), place});
}

std::vector<Text> TableReader::TextsOf(const DelimitedRecord& record) {
  std::vector<Text> texts;
  texts.reserve(record.fields.size());
  for (const std::string& field : record.fields) {
    const Text text = decoder_.Decode(field);
    texts.push_back(isHtml_ ? WithoutHtml(text, record.line) : text);
  }
  return texts;
}

Text TableReader::WithoutHtml(const Text& field, std::size_t line) {
  Text text = TextOfHtml(field);
  if (text != field && !hasToldHtml_) {
    losses_.Tell({&source_.name, line}, "tags go, and what stands for a character becomes it");
    hasToldHtml_ = true;
  }
  return text;
}

void TableReader::TellColumn(const Text& name, std::size_t line) {
  losses_.Tell({&source_.name, line}, "the column \"" + VisibleText(name) + "\" is not kept");
}

void TableReader::TellOtherColumns(const std::vector<Text>& names, std::size_t line) {
  for (std::size_t at = 0; at < names.size(); ++at) {
    if (columns_->columns[at] == CardColumn::kOther && !leftOut_.contains(at + 1))
      TellColumn(names[at], line);
  }
}

}  // namespace tessara
