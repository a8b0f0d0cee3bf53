#include "deck/file/deck_path.h"

#include <doctest/doctest.h>
#include <vector>

#include "tests/support/fakes/memory_files.h"

namespace tessara::test {

namespace {

/// A disk that has every entry and writes each name in capitals.
class CapitalNames : public MemoryFiles {
 public:
  std::vector<Text> asked;
  std::optional<Text> EntryName(const Text& path) override {
    asked.push_back(path);
    return UpperCase(TextView(path).substr(path.find_last_of(u"/\\") + 1));
  }
};

}  // namespace

TEST_CASE("each name of a path is taken as it stands in its folder") {
  struct Case {
    TextView path;
    TextView longPath;
  };
  const Case cases[] = {
      {u"/home/deck~1.tsr", u"/HOME/DECK~1.TSR"},
      {u"c:\\decks\\a b.tsr", u"c:\\DECKS\\A B.TSR"},
      {u"C:\\decks/a.tsr", u"C:\\DECKS/A.TSR"},
      {u"//server/a.tsr", u"//SERVER/A.TSR"},
      {u"/:odd/a.tsr", u"/:ODD/A.TSR"},
      {u"/a.tsr", u"/A.TSR"},
      {u"/a.tsr/", u"/A.TSR"},
      {u"/", u""},
      {u"", u""},
  };
  for (const Case& c : cases) {
    CapitalNames files;
    CHECK(LongPathOf(Text(c.path), files) == c.longPath);
  }
}

TEST_CASE("the folders are looked up from the root on, by the path as given") {
  CapitalNames files;
  (void)LongPathOf(u"C:\\one\\two", files);
  CHECK(files.asked == std::vector<Text>{u"C:\\one", u"C:\\one\\two"});
}

TEST_CASE("a path with a part that is missing has no long form at all") {
  MemoryFiles files;
  files.Put(u"/home/.hidden/deck.tsr", "");
  CHECK(LongPathOf(u"/home/.hidden/deck.tsr", files) == u"/home/.hidden/deck.tsr");
  CHECK(LongPathOf(u"/home/.hidden", files) == u"/home/.hidden");
  CHECK(LongPathOf(u"/home/.hidden/other.tsr", files).empty());
  CHECK(LongPathOf(u"/nowhere/deck.tsr", files).empty());
}

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
  for (const Case& c : cases) CHECK(DeckNameOf(Text(c.path)) == c.name);
}

TEST_CASE("a path's folder and file name part at its last separator, and the root stays one") {
  struct Case {
    Text path;
    Text folder;
    Text fileName;
  };
  for (const Case& c : {Case{u"/home/me/a.tsr", u"/home/me", u"a.tsr"},
                        {u"C:\\decks\\a.tsr", u"C:\\decks", u"a.tsr"},
                        {u"C:\\decks/a", u"C:\\decks", u"a"},
                        {u"/a.tsr", u"/", u"a.tsr"},
                        {u"/decks/", u"/decks", u""},
                        {u"a.tsr", u"", u"a.tsr"},
                        {u"", u"", u""}}) {
    CHECK(FolderOf(c.path) == c.folder);
    CHECK(FileNameOf(c.path) == c.fileName);
  }
  CHECK(WithoutDeckEnding(u"a.tsr") == u"a");
  CHECK(WithoutDeckEnding(u"a.TSR.x") == u"a.TSR.x");
}

}  // namespace tessara::test
