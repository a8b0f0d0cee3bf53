#pragma once

#include "companion/cards/findings.h"
#include "companion/formats/source.h"

namespace tessara {

/// Tells all that the program's import would stop at or pass over in silence.
void CheckImportText(const Source& source, const CodePage& codePage, Findings& findings);

}  // namespace tessara
