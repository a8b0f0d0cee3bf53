#pragma once

#include "deck/file/deck_record.h"
#include "tests/support/life_fixture.h"

namespace tessara::test {

inline const Text kA = u"/decks/a.tsr";
inline const Text kB = u"/decks/b.tsr";

/// A fixture with the files a.tsr of 2 cards and b.tsr of 3, and an empty new deck.
struct TwoFiles : LifeFixture {
  TwoFiles() {
    PutDeck(kA, 2);
    PutDeck(kB, 3);
    NewDeck();
  }
};

/// The same with a.tsr open, whose first card has been deleted.
struct ChangedDeck : TwoFiles {
  ChangedDeck() {
    OpenFile(kA);
    DeleteCard();
    (void)TakeBoxes();
  }
};

}  // namespace tessara::test
