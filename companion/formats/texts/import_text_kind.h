#pragma once

#include "companion/formats/source.h"
#include "import/cards_reading.h"

namespace tessara {

/// The program's reader for the format that the first line names; null where it names none.
[[nodiscard]] CardsReader ReaderOf(const Source& source, const CodePage& codePage);

}  // namespace tessara
