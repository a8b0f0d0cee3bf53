#include <doctest/doctest.h>

#include "deck/life/dialog_places.h"
#include "tests/support/fakes/memory_files.h"

namespace tessara::test {

TEST_CASE("a place where a file can be made is not refused, with a file there or without") {
  MemoryFiles files;
  files.Put(u"/decks/old.tsr", "old");
  for (const TextView path : {u"/decks/old.tsr", u"/decks/new.tsr", u"/decks/without ending"}) {
    CHECK(SaveRefusal(Text(path), files).empty());
  }
}

TEST_CASE("a place where no file can be made is refused with the reason") {
  struct Case {
    TextView path;
    TextView reason;
  };
  const Case cases[] = {
      {u"/usr/lib/a.tsr", u"you can't write there."},
      {u"/decks/locked.tsr", u"you can't write there."},
      {u"/gone/a.tsr", u"there is no such folder."},
      {u"/decks", u"a file can't have this name."},
  };
  MemoryFiles files;
  files.folders.insert({u"/decks", u"/usr/lib"});
  files.withoutPermission = {u"/usr/lib", u"/decks/locked.tsr"};
  for (const Case& c : cases) {
    CHECK(SaveRefusal(Text(c.path), files) == u"The deck can't be saved: " + Text(c.reason) +
                                                  u" Choose another place or name.\r\n\r\n" +
                                                  Text(c.path));
  }
}

TEST_CASE("whatever else the disk says is told in words too") {
  MemoryFiles files;
  const auto refusalOf = [&files](ErrorNumber error) {
    files.fault = [error](MemoryFiles::Operation, const Text&) { return std::optional(error); };
    return SaveRefusal(u"/a.tsr", files);
  };
  CHECK(refusalOf(ErrorNumber::kDiskFull).find(u"the disk is full.") != Text::npos);
  CHECK(refusalOf(ErrorNumber::kDeviceIo).find(u"the disk doesn't take it.") != Text::npos);
}

}  // namespace tessara::test
