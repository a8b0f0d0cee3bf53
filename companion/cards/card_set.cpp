#include "companion/cards/card_set.h"

#include <algorithm>
#include <utility>

#include "companion/cards/refused.h"

namespace tessara {

bool HasChoices(const DeckRecord& record) {
  return std::any_of(record.shortFields.begin(), record.shortFields.end(),
                     [](const Text& choice) { return !choice.empty(); });
}

void AddCard(CardSet& set, SourceCard card) {
  if (set.cards.size() == kMostSetCards)
    throw Refused(card.place, "more than " + std::to_string(kMostSetCards) + " cards");
  set.cards.push_back(std::move(card));
}

}  // namespace tessara
