#include "deck/life/deck_name.h"

#include <doctest/doctest.h>

namespace tessara::test {

TEST_CASE("a deck's name stands behind the last separator and before the first point") {
  struct Case {
    TextView path;
    TextView name;
  };
  const Case cases[] = {
      {u"/home/me/Capitals.tsr", u"Capitals"},
      {u"C:\\Decks\\Capitals.tsr", u"Capitals"},
      {u"C:\\Decks/Capitals.tsr", u"Capitals"},
      {u"/decks/my.old.tsr", u"my"},
      {u"/decks/two words.tsr", u"two words"},
      {u"/my.folder/Capitals", u""},
      {u"/decks/.tsr", u""},
      {u"Capitals.tsr", u""},
      {u"/decks/", u""},
      {u"", u""},
  };
  for (const Case& c : cases) CHECK(DeckNameOf(c.path) == c.name);
}

}  // namespace tessara::test
