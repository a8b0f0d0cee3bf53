#pragma once

#include <string>

#include "companion/cards/card_set.h"

namespace tessara {

/// The information, a line for each thing that it tells, and the number of cards.
[[nodiscard]] std::string InformationText(const CardSet& set);
/// A card for the eye: its number and its texts, a line each, on which nothing is hidden.
[[nodiscard]] std::string CardText(const DeckRecord& record, DeckKind kind, std::size_t number);

/// A JSON object of title, author, description, date and kind.
[[nodiscard]] std::string InformationJson(const CardSet& set);
/// A JSON object of the front and the back, or of the question, its choices and the answer. The
/// choices of a true/false question are an empty list.
[[nodiscard]] std::string CardJson(const DeckRecord& record, DeckKind kind);

}  // namespace tessara
