#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "companion/cards/card_set.h"
#include "companion/formats/source_and_sink.h"
#include "companion/formats/tables/tsv_format.h"

namespace tessara {

enum class FileFormat { kDeck, kText, kCsv, kTsv, kKvtml };

/// The format of an ending or of its name, "csv" or ".csv", in any case.
[[nodiscard]] std::optional<FileFormat> FormatNamed(std::string_view name);
/// The format that the name of a file ends in.
[[nodiscard]] std::optional<FileFormat> FormatOfFile(const std::string& fileName);
/// All names, separated by commas.
[[nodiscard]] std::string FormatNames();

/// The most cards that a file of the format holds; none where there is no bound.
[[nodiscard]] std::optional<std::size_t> MostCardsOf(FileFormat format);

/// Reads a file of the format, which may use up its bytes. Raises Refused.
[[nodiscard]] CardSet ReadCards(FileFormat format, Source& source, const Conversion& conversion);

/// Writes a file of the format. Raises Refused, and what the sink raises.
void WriteCards(FileFormat format, const CardsToWrite& deck, ByteSink& sink,
                const Conversion& conversion, TsvComments comments = TsvComments::kNone);

}  // namespace tessara
