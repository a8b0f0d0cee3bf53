#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/source.h"

namespace tessara {

/// The entries of a vocabulary file of KDE, version 2, in their order: the first two languages are
/// the sides of a card. Its bytes are used up. Raises Refused for what is no such file.
[[nodiscard]] CardSet ReadKvtml(Source& source, const Conversion& conversion);

}  // namespace tessara
