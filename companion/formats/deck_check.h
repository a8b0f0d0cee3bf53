#pragma once

#include "companion/cards/findings.h"
#include "companion/formats/source.h"

namespace tessara {

/// Tells all that is wrong with a deck file, record by record: numbers, types, holes, answers, and
/// texts that were perhaps cut.
void CheckDeck(const Source& source, const CodePage& codePage, Findings& findings);

}  // namespace tessara
