// The file in which a process keeps its unsaved deck: while it lives, and when it has ended.

#include <algorithm>
#include <array>
#include <csignal>
#include <doctest/doctest.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

#include "adapters/posix/copies/copy_name.h"
#include "adapters/posix/copies/posix_safety_copies.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/killed_process.h"
#include "tests/support/open_files.h"
#include "tests/support/process_end.h"
#include "tests/support/refused_call.h"

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

struct UnsavedFixture {
  ScratchFolder folder{kInMemory};
  fs::path copiesFolder = folder / "copies";
  PosixSafetyCopies copies{copiesFolder};

  [[nodiscard]] std::vector<std::string> Kept() const { return KeptIn(folder); }
  /// What a user sees there.
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names = NamesIn(copiesFolder);
    std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
    return names;
  }
  [[nodiscard]] std::size_t HiddenFiles() const {
    return NamesIn(copiesFolder).size() - Names().size();
  }
};

ino_t FileOf(const fs::path& path) {
  struct stat status {};
  REQUIRE(lstat(path.c_str(), &status) == 0);
  return status.st_ino;
}

/// Keeps a deck in a process of its own, which is then killed.
void LeaveByAnotherProcess(const fs::path& folder, const Text& fileName, const std::string& deck) {
  const pid_t child = fork();
  if (child == 0) {
    PosixSafetyCopies copies(folder);
    copies.KeepUnsaved(fileName, "before");
    copies.KeepUnsaved(fileName, deck);
    raise(SIGKILL);
  }
  ExpectEndBySignal(child, SIGKILL);
}

using Decks = std::vector<std::string>;

}  // namespace

TEST_CASE("the unsaved deck is one file that ends as a deck does, replaced by each change") {
  UnsavedFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  fixture.copies.KeepUnsaved(u"other name.tsr", "two");
  REQUIRE(fixture.Names().size() == 1);
  CHECK(fixture.Names()[0] == "verbs (unsaved " + std::to_string(getpid()) + "-1).tsr");
  CHECK(fixture.Kept() == Decks{"two"});
  const auto permissions = fs::status(fixture.copiesFolder / fixture.Names()[0]).permissions();
  CHECK(permissions == static_cast<fs::perms>(0600));
}

TEST_CASE("a shorter or a longer deck takes the place of the one before, whole") {
  UnsavedFixture fixture;
  for (const std::size_t length : {9U, 2U, 5U, 1U, 7U}) {
    const std::string deck(length, static_cast<char>('0' + length));
    fixture.copies.KeepUnsaved(u"verbs.tsr", deck);
    CHECK(fixture.Kept() == Decks{deck});
  }
}

TEST_CASE("changes use two files in turn, and make no other") {
  UnsavedFixture fixture;
  std::vector<ino_t> files;
  for (const char* const deck : {"one", "two", "three", "four", "five"}) {
    fixture.copies.KeepUnsaved(u"verbs.tsr", deck);
    files.push_back(FileOf(fixture.copiesFolder / fixture.Names().at(0)));
  }
  CHECK(files[0] == files[2]);
  CHECK(files[1] == files[3]);
  CHECK(files[2] == files[4]);
  CHECK(fixture.HiddenFiles() == 1);
}

TEST_CASE("the spare file goes with the deck that is dropped, left, or kept for good") {
  const auto ways = std::to_array<void (*)(PosixSafetyCopies&)>(
      {[](PosixSafetyCopies& copies) { copies.DropUnsaved(); },
       [](PosixSafetyCopies& copies) { copies.LeaveUnsaved(); },
       [](PosixSafetyCopies& copies) { copies.KeepNotSaved(u"verbs.tsr", "three"); }});
  for (const auto way : ways) {
    UnsavedFixture fixture;
    fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
    fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
    REQUIRE(fixture.HiddenFiles() == 1);
    way(fixture.copies);
    CHECK(fixture.HiddenFiles() == 0);
  }
}

TEST_CASE("the spare file of a process that lives stays, that of a killed one goes") {
  UnsavedFixture fixture;
  LeaveByAnotherProcess(fixture.copiesFolder, u"nouns.tsr", "unsaved");
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
  REQUIRE(fixture.HiddenFiles() == 2);
  PosixSafetyCopies(fixture.copiesFolder).TakeLeftDecks();
  CHECK(fixture.HiddenFiles() == 1);
  fixture.copies.KeepUnsaved(u"verbs.tsr", "three");
  CHECK(fixture.Kept() == Decks{"unsaved", "three"});
}

TEST_CASE("a deck is kept where the spare file or the deck's own has been taken away") {
  for (const bool hidden : {true, false}) {
    CAPTURE(hidden);
    UnsavedFixture fixture;
    fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
    fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
    for (const std::string& name : NamesIn(fixture.copiesFolder)) {
      if (name.starts_with('.') == hidden) fs::remove(fixture.copiesFolder / name);
    }
    fixture.copies.KeepUnsaved(u"verbs.tsr", "three");
    CHECK(fixture.Kept() == Decks{"three"});
  }
}

TEST_CASE("a deck is kept again where the folder of the copies has been taken away") {
  for (const bool spare : {false, true}) {
    CAPTURE(spare);
    UnsavedFixture fixture;
    fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
    if (spare) fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
    fs::remove_all(fixture.copiesFolder);
    for (const char* const deck : {"three", "four", "five"}) {
      fixture.copies.KeepUnsaved(u"verbs.tsr", deck);
      CHECK(fixture.Kept() == Decks{deck});
    }
  }
}

TEST_CASE("another file that has taken the deck's name, or is linked to it, is never written to") {
  UnsavedFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  const fs::path kept = fixture.copiesFolder / fixture.Names().at(0);
  fs::create_hard_link(kept, fixture.folder / "link");
  fs::rename(kept, fixture.folder / "moved");
  fixture.folder.Write("of another", "of another");
  fs::create_hard_link(fixture.folder / "of another", kept);
  for (const char* const deck : {"two", "three", "four"}) {
    fixture.copies.KeepUnsaved(u"verbs.tsr", deck);
    CHECK(fixture.Kept() == Decks{deck});
  }
  CHECK(fixture.folder.Read("link") == "one");
  CHECK(fixture.folder.Read("of another") == "of another");
}

TEST_CASE("where files can't swap their names, each deck comes into the place of the one before") {
  UnsavedFixture fixture;
  StoppedAtCalls child([&] {
    for (const char* const deck : {"one", "two", "three"}) {
      fixture.copies.KeepUnsaved(u"verbs.tsr", deck);
    }
    return 0;
  });
  int refused = 0;
  while (child.GoOn()) {
    const bool swap = child.Call() == SYS_renameat2;
    if (swap) child.Prevent();
    if (!child.GoOn()) break;
    if (swap) child.Refuse(EINVAL);
    refused += swap ? 1 : 0;
  }
  CHECK(refused == 2);
  CHECK(fixture.Kept() == Decks{"three"});
  CHECK(fixture.HiddenFiles() == 0);
}

TEST_CASE("the unsaved deck goes when it is dropped, and stays when it is left") {
  UnsavedFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  fixture.copies.DropUnsaved();
  fixture.copies.DropUnsaved();
  CHECK(fixture.Names().empty());
  fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
  fixture.copies.LeaveUnsaved();
  fixture.copies.DropUnsaved();
  fixture.copies.KeepUnsaved(u"verbs.tsr", "three");
  CHECK(fixture.Kept() == Decks{"two", "three"});
}

TEST_CASE("decks of a process that lives are not taken, not even those that it has left") {
  UnsavedFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
  fixture.copies.LeaveUnsaved();
  fixture.copies.KeepUnsaved(u"nouns.tsr", "three");
  CHECK(PosixSafetyCopies(fixture.copiesFolder).TakeLeftDecks().empty());
  CHECK(fixture.Names().size() == 2);
}

TEST_CASE("what a killed process has left is taken once, and is a copy like any other then") {
  UnsavedFixture fixture;
  LeaveByAnotherProcess(fixture.copiesFolder, u"verbs.tsr", "unsaved");
  const std::string before = fixture.Names().at(0);
  const std::vector<LeftDeck> taken = fixture.copies.TakeLeftDecks();
  REQUIRE(taken.size() == 1);
  CHECK(taken[0].name == u"verbs");
  CHECK(taken[0].oldPath == FromUtf8((fixture.copiesFolder / before).string()));
  REQUIRE(fixture.Names().size() == 1);
  CHECK(taken[0].path == FromUtf8((fixture.copiesFolder / fixture.Names()[0]).string()));
  CHECK(ReadCopyName(fixture.Names()[0])->fileName == "verbs not saved.tsr");
  CHECK(fixture.Kept() == Decks{"unsaved"});
  CHECK(fixture.copies.TakeLeftDecks().empty());
}

TEST_CASE("a clean end leaves the deck too, for the next start") {
  UnsavedFixture fixture;
  {
    PosixSafetyCopies ended(fixture.copiesFolder);
    ended.KeepUnsaved(u"verbs.tsr", "unsaved");
    ended.LeaveUnsaved();
  }
  CHECK(fixture.copies.TakeLeftDecks().size() == 1);
}

TEST_CASE("a process's own file is never one that another has left") {
  UnsavedFixture fixture;
  fs::create_directory(fixture.copiesFolder);
  const std::string taken = UnsavedName("verbs.tsr", getpid(), 1);
  fixture.folder.Write("copies/" + taken, "of another");
  fixture.copies.KeepUnsaved(u"verbs.tsr", "mine");
  CHECK(fixture.Kept() == Decks{"of another", "mine"});
}

TEST_CASE("only regular files are taken, and nothing waits for a peer") {
  UnsavedFixture fixture;
  fs::create_directories(fixture.copiesFolder / "a (unsaved 1-1).tsr");
  REQUIRE(mkfifo((fixture.copiesFolder / "b (unsaved 1-1).tsr").c_str(), 0600) == 0);
  fs::create_symlink("/etc/passwd", fixture.copiesFolder / "c (unsaved 1-1).tsr");
  CHECK(fixture.copies.TakeLeftDecks().empty());
  CHECK(fixture.Names().size() == 3);
}

TEST_CASE("where there is no folder, no start makes one and nothing is taken") {
  UnsavedFixture fixture;
  CHECK(fixture.copies.TakeLeftDecks().empty());
  CHECK_FALSE(fs::exists(fixture.copiesFolder));
  CHECK(PosixSafetyCopies("").TakeLeftDecks().empty());
}

TEST_CASE("a name that no file can have is made into one that can") {
  UnsavedFixture fixture;
  fixture.copies.KeepUnsaved(Text(u"a\0b.tsr", 7), "one");
  CHECK(fixture.Names().at(0).starts_with("a_b (unsaved "));
  fixture.copies.DropUnsaved();
  fixture.copies.KeepUnsaved(Text(300, u'v'), "two");
  CHECK(fixture.Kept() == Decks{"two"});
}

TEST_CASE("wherever a process is killed, what it has kept is whole") {
  const Decks inTurn{"one", "longer", "three", "4"};
  std::set<std::string> met;
  bool killed = true;
  for (int stop = 1; killed; ++stop) {
    CAPTURE(stop);
    UnsavedFixture fixture;
    killed = KilledAt(stop, [&] {
      PosixSafetyCopies copies(fixture.copiesFolder);
      for (const std::string& deck : inTurn) copies.KeepUnsaved(u"verbs.tsr", deck);
    });
    const std::size_t decks = fixture.copies.TakeLeftDecks().size();
    CHECK(decks <= 1);
    Decks whole;
    for (const std::string& name : fixture.Names()) {
      if (ReadCopyName(name)) whole.push_back(BytesOf(fixture.copiesFolder / name));
    }
    CHECK(whole.size() == decks);
    met.insert(whole.begin(), whole.end());
    CHECK(fixture.HiddenFiles() == 0);
  }
  CHECK(met == std::set<std::string>(inTurn.begin(), inTurn.end()));
}

TEST_CASE("nothing stays open behind a deck that is dropped or taken") {
  UnsavedFixture fixture;
  LeaveByAnotherProcess(fixture.copiesFolder, u"verbs.tsr", "unsaved");
  const int lowest = LowestFreeDescriptor();
  fixture.copies.KeepUnsaved(u"verbs.tsr", "one");
  fixture.copies.KeepUnsaved(u"verbs.tsr", "two");
  fixture.copies.DropUnsaved();
  fixture.copies.TakeLeftDecks();
  CHECK(LowestFreeDescriptor() == lowest);
}

}  // namespace tessara::test
