#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/source.h"

namespace tessara {

/// The cards of a text, as the program imports it. Raises Refused where it does not.
[[nodiscard]] CardSet ReadImportText(const Source& source, const Conversion& conversion);

}  // namespace tessara
