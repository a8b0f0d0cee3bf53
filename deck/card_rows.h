#pragma once

#include <vector>

#include "deck/deck.h"

namespace tessara {

/// The rows that hold a card of this deck, in their order: the present ones, and those with a text
/// that nothing has made present. What an earlier deck has left where a clear does not reach, in
/// absent rows and behind row 200, is none of them.
[[nodiscard]] std::vector<int> CardRows(const Deck& deck);

}  // namespace tessara
