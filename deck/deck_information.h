#pragma once

#include "deck/deck.h"

namespace tessara {

/// What a deck tells about itself. What its user has not filled in has these texts.
struct DeckInformation {
  Text title = u"Enter Title Here";
  Text author = u"Your Name Here";
  Text description = u"Deck Description Here";
  Text date;
  Text typeName;
};

/// Writes it to the information row, and title, author and description to the deck's copies of
/// them; those of date and type stay.
void StoreDeckInformation(const DeckInformation& information, Deck& deck);

}  // namespace tessara
