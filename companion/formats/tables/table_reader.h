#pragma once

#include <optional>
#include <set>
#include <string>

#include "companion/cards/card_set.h"
#include "companion/cards/text_form.h"
#include "companion/formats/source_and_sink.h"
#include "companion/formats/tables/card_columns.h"
#include "companion/formats/tables/delimited_reader.h"

namespace tessara {

/// Makes cards of the records of a table. The first record is the names of the columns, where it
/// looks like names and they are not known yet.
class TableReader {
 public:
  TableReader(const Source& source, const TextDecoder& decoder, Losses& losses)
      : source_(source), decoder_(decoder), losses_(losses) {}

  /// The names of the columns stand elsewhere, on that line. What names no columns is passed over.
  void TakeNames(const std::vector<Text>& names, std::size_t line);
  /// The column of that number, from 1, holds no text of a card, as that line says: it is told.
  void LeaveOut(std::size_t column, const Text& name, std::size_t line);
  /// The fields are HTML: what goes of it is told once.
  void TakeHtml() { isHtml_ = true; }
  /// Reads all records. Tells what belongs to no card.
  [[nodiscard]] CardSet Read(DelimitedReader& records);

 private:
  void Take(const DelimitedRecord& record);
  void TakeUnnamed(std::size_t fieldCount);
  void TakeCard(const DelimitedRecord& record);
  [[nodiscard]] std::vector<Text> TextsOf(const DelimitedRecord& record);
  [[nodiscard]] Text WithoutHtml(const Text& field, std::size_t line);
  void TellColumn(const Text& name, std::size_t line);
  void TellOtherColumns(const std::vector<Text>& names, std::size_t line);

  const Source& source_;
  const TextDecoder& decoder_;
  Losses& losses_;
  bool isHtml_ = false;
  bool hasToldHtml_ = false;
  std::set<std::size_t> leftOut_;
  std::optional<CardColumns> columns_;
  CardSet set_;
};

}  // namespace tessara
