#include "companion/formats/file_format.h"

#include <array>

#include "companion/formats/deck_format.h"
#include "companion/formats/kvtml/kvtml_format.h"
#include "companion/formats/lower_case.h"
#include "companion/formats/tables/csv_format.h"
#include "companion/formats/texts/import_text_format.h"

namespace tessara {

namespace {

struct FormatRow {
  std::string_view name;
  FileFormat format;
};

constexpr std::array<FormatRow, 5> kFormats = {{{"tsr", FileFormat::kDeck},
                                                {"txt", FileFormat::kText},
                                                {"csv", FileFormat::kCsv},
                                                {"tsv", FileFormat::kTsv},
                                                {"kvtml", FileFormat::kKvtml}}};

}  // namespace

std::optional<FileFormat> FormatNamed(std::string_view name) {
  if (name.starts_with('.')) name.remove_prefix(1);
  for (const FormatRow& row : kFormats) {
    if (LowerCase(name) == row.name) return row.format;
  }
  return std::nullopt;
}

std::optional<FileFormat> FormatOfFile(const std::string& fileName) {
  const std::size_t point = fileName.rfind('.');
  return point == fileName.npos ? std::nullopt : FormatNamed(fileName.substr(point));
}

std::string FormatNames() {
  std::string names;
  for (const FormatRow& row : kFormats) {
    if (!names.empty()) names += ", ";
    names += row.name;
  }
  return names;
}

std::optional<std::size_t> MostCardsOf(FileFormat format) {
  const bool bounded = format == FileFormat::kDeck || format == FileFormat::kText;
  return bounded ? std::optional<std::size_t>(kMostCards) : std::nullopt;
}

CardSet ReadCards(FileFormat format, Source& source, const Conversion& conversion) {
  switch (format) {
    case FileFormat::kDeck:
      return ReadDeck(source, conversion);
    case FileFormat::kText:
      return ReadImportText(source, conversion);
    case FileFormat::kCsv:
      return ReadCsv(source, conversion);
    case FileFormat::kTsv:
      return ReadTsv(source, conversion);
    case FileFormat::kKvtml:
      return ReadKvtml(source, conversion);
  }
  return {};
}

void WriteCards(FileFormat format, const CardsToWrite& deck, ByteSink& sink,
                const Conversion& conversion, TsvComments comments) {
  switch (format) {
    case FileFormat::kDeck:
      return WriteDeck(deck, sink, conversion);
    case FileFormat::kText:
      return WriteImportText(deck, sink, conversion);
    case FileFormat::kCsv:
      return WriteCsv(deck, sink, conversion);
    case FileFormat::kTsv:
      return WriteTsv(deck, sink, conversion, comments);
    case FileFormat::kKvtml:
      return WriteKvtml(deck, sink, conversion);
  }
}

}  // namespace tessara
