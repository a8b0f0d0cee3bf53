#include "adapters/posix/copies/posix_safety_copies.h"

#include <chrono>
#include <doctest/doctest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "adapters/posix/copies/copy_name.h"
#include "base/utf8.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/limited_process.h"
#include "tests/support/open_files.h"

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMegabyte = 1048576;

/// "verbs.tsr"; empty for a file that is no copy.
std::string DeckOf(const std::string& name) {
  const auto named = ReadCopyName(name);
  return named ? named->fileName : "";
}

/// A folder of decks and, in "state/copies", what is kept of them.
struct CopyFixture {
  ScratchFolder folder;
  PosixSafetyCopies copies{folder / "state/copies"};
  std::uint64_t number = 0;

  void Keep(const Text& name, Loss loss = Loss::kWrittenOver) {
    copies.Keep(folder.TextPath(name), loss);
  }
  [[nodiscard]] fs::path CopiesFolder() const { return folder / "state/copies"; }
  [[nodiscard]] std::vector<std::string> Names() const { return NamesIn(CopiesFolder()); }
  [[nodiscard]] std::vector<std::string> Kept() const {
    std::vector<std::string> kept;
    for (const std::string& name : Names()) kept.push_back(BytesOf(CopiesFolder() / name));
    return kept;
  }
  [[nodiscard]] int CountOf(const std::string& deck) const {
    const std::vector<std::string> names = Names();
    return static_cast<int>(std::count_if(
        names.begin(), names.end(), [&](const std::string& name) { return DeckOf(name) == deck; }));
  }
  /// The next copy in the order, of that size.
  void PutCopy(const std::string& deck, std::uintmax_t size = 1) {
    fs::create_directories(CopiesFolder());
    const fs::path path =
        CopiesFolder() / CopyName(deck, std::chrono::system_clock::now(), ++number);
    std::ofstream(path, std::ios::binary) << "x";
    fs::resize_file(path, size);
  }
  void PutDeck(const std::string& name, std::uintmax_t size) const {
    folder.Write(name, "deck");
    fs::resize_file(folder / name, size);
  }
  [[nodiscard]] std::uintmax_t AllBytes() const {
    std::uintmax_t bytes = 0;
    for (const std::string& name : Names()) bytes += fs::file_size(CopiesFolder() / name);
    return bytes;
  }
};

}  // namespace

TEST_CASE("a kept file is there byte for byte under the name of its deck") {
  CopyFixture fixture;
  const std::string bytes = std::string("any\0\xFF bytes\r\n", 13) + std::string(200000, 'x');
  fixture.folder.Write("verbs.tsr", bytes);
  fixture.Keep(u"verbs.tsr");
  REQUIRE(fixture.Names().size() == 1);
  CHECK(DeckOf(fixture.Names()[0]) == "verbs.tsr");
  CHECK(fixture.Kept()[0] == bytes);
  CHECK(fixture.folder.Read("verbs.tsr") == bytes);
}

TEST_CASE("copies are for their owner only") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  fs::permissions(fixture.folder / "verbs.tsr", static_cast<fs::perms>(0644));
  fixture.Keep(u"verbs.tsr");
  REQUIRE(fixture.Names().size() == 1);
  const fs::path copy = fixture.CopiesFolder() / fixture.Names()[0];
  CHECK(fs::status(copy).permissions() == static_cast<fs::perms>(0600));
  CHECK(fs::status(fixture.CopiesFolder()).permissions() == static_cast<fs::perms>(0700));
  CHECK(fs::status(fixture.folder / "state").permissions() == static_cast<fs::perms>(0700));
}

TEST_CASE("copies made in the same moment each get a name") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  for (int count = 0; count < 5; ++count) fixture.Keep(u"verbs.tsr");
  CHECK(fixture.Names().size() == 5);
}

TEST_CASE("a copy is kept beside one with the highest number that a name can have") {
  CopyFixture fixture;
  fs::create_directories(fixture.CopiesFolder());
  fixture.folder.Write("verbs.tsr", "deck");
  const fs::path highest = fixture.CopiesFolder() / "verbs 2026-01-01 00-00-00-999999999999.tsr";
  fs::copy_file(fixture.folder / "verbs.tsr", highest);
  fixture.Keep(u"verbs.tsr");
  fixture.Keep(u"verbs.tsr");
  CHECK(fixture.CountOf("verbs.tsr") == 3);
}

TEST_CASE("the newest 20 of a deck are kept, whatever other decks have") {
  CopyFixture fixture;
  for (std::uintmax_t size = 1; size <= 20; ++size) {
    fixture.PutCopy("verbs.tsr", size + 1);
    fixture.PutCopy("nouns.tsr");
  }
  fixture.folder.Write("verbs.tsr", "deck");
  fixture.Keep(u"verbs.tsr");
  CHECK(fixture.CountOf("verbs.tsr") == 20);
  CHECK(fixture.CountOf("nouns.tsr") == 20);
  for (const std::string& name : fixture.Names()) {
    CHECK(fs::file_size(fixture.CopiesFolder() / name) != 2);
  }
  fixture.Keep(u"verbs.tsr");
  CHECK(fixture.CountOf("verbs.tsr") == 20);
}

TEST_CASE("copies have 50 MB at most in all; the oldest of any deck make room") {
  CopyFixture fixture;
  for (const char* const deck : {"older.tsr", "old.tsr", "a.tsr", "b.tsr", "c.tsr"}) {
    fixture.PutCopy(deck, 9 * kMegabyte);
  }
  fixture.PutDeck("verbs.tsr", 5 * kMegabyte);
  fixture.Keep(u"verbs.tsr");
  CHECK(fixture.AllBytes() == 50 * kMegabyte);
  CHECK(fixture.CountOf("older.tsr") == 1);

  fixture.PutDeck("verbs.tsr", 1);
  fixture.Keep(u"verbs.tsr");
  CHECK(fixture.CountOf("older.tsr") == 0);
  CHECK(fixture.CountOf("old.tsr") == 1);
  CHECK(fixture.CountOf("verbs.tsr") == 2);
}

TEST_CASE(
    "a file of 10 MB is kept; what is larger or empty is not, and nothing makes room for it") {
  struct Case {
    std::uintmax_t size;
    bool kept;
  };
  for (const Case& c : {Case{0, false}, Case{1, true}, Case{10 * kMegabyte, true},
                        Case{10 * kMegabyte + 1, false}}) {
    CAPTURE(c.size);
    CopyFixture fixture;
    for (int count = 0; count < 20; ++count) fixture.PutCopy("verbs.tsr");
    fixture.PutDeck("verbs.tsr", c.size);
    fixture.Keep(u"verbs.tsr");
    CHECK(fixture.AllBytes() == (c.kept ? 19 + c.size : 20));
  }
}

TEST_CASE("files of the user's own in the folder stay") {
  CopyFixture fixture;
  fs::create_directories(fixture.CopiesFolder() / "verbs 2000-01-01 00-00-00-000.tsr");
  fixture.folder.Write("state/copies/verbs.tsr", "mine");
  fixture.folder.Write("state/copies/.hidden", "mine");
  fs::resize_file(fixture.CopiesFolder() / "verbs.tsr", 60 * kMegabyte);
  fixture.folder.Write("verbs.tsr", "deck");
  for (int count = 0; count < 22; ++count) fixture.Keep(u"verbs.tsr");
  CHECK(fixture.Names().size() == 23);
}

TEST_CASE("only regular files are kept, and nothing waits for a peer") {
  CopyFixture fixture;
  REQUIRE(mkfifo((fixture.folder / "pipe").c_str(), 0600) == 0);
  fs::create_directory(fixture.folder / "folder");
  fs::create_symlink("missing", fixture.folder / "dangling");
  fs::create_symlink("loop", fixture.folder / "loop");
  for (const char16_t* const name : {u"pipe", u"folder", u"dangling", u"loop", u"missing", u""}) {
    fixture.Keep(name);
  }
  for (const char16_t* const path : {u"/dev/zero", u"/dev/tty", u"", u"/proc/self/mem"}) {
    fixture.copies.Keep(path, Loss::kWrittenOver);
  }
  fixture.folder.Write("a", "x");
  fixture.Keep(Text(u"a\0b", 3));
  CHECK_FALSE(fs::exists(fixture.folder / "state"));
}

TEST_CASE("what a link leads to is kept under the name of the link") {
  CopyFixture fixture;
  fixture.folder.Write("target", "deck");
  fs::create_symlink("target", fixture.folder / "link.tsr");
  fixture.Keep(u"link.tsr");
  CHECK(fixture.Kept() == std::vector<std::string>{"deck"});
  CHECK(fixture.CountOf("link.tsr") == 1);
}

TEST_CASE("a copy that is itself saved over is kept like any file") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  fixture.Keep(u"verbs.tsr");
  fixture.Keep(u"state/copies/" + FromUtf8(fixture.Names()[0]));
  CHECK(fixture.Kept() == std::vector<std::string>{"deck", "deck"});
}

TEST_CASE("the newest of a deck's copies are those that were made last, whatever the clock said") {
  CopyFixture fixture;
  fs::create_directories(fixture.CopiesFolder());
  const auto future = fs::file_time_type::clock::now() + std::chrono::hours(24 * 365);
  for (int count = 10; count < 30; ++count) {
    const std::string name = "verbs 2099-01-01 00-00-" + std::to_string(count) + "-000.tsr";
    fixture.folder.Write("state/copies/" + name, "future");
    fs::last_write_time(fixture.CopiesFolder() / name, future);
  }
  for (const char* const deck : {"first", "second", "third"}) {
    fixture.folder.Write("verbs.tsr", deck);
    fixture.Keep(u"verbs.tsr");
  }
  const std::vector<std::string> kept = fixture.Kept();
  CHECK(kept.size() == 20);
  CHECK(std::count(kept.begin(), kept.end(), "future") == 17);
  fixture.PutCopy("verbs.tsr", 7);
  for (int count = 0; count < 19; ++count) fixture.Keep(u"verbs.tsr");
  CHECK(fixture.CountOf("verbs.tsr") == 20);
  const std::vector<std::string> last = fixture.Kept();
  CHECK(std::count(last.begin(), last.end(), "third") == 20);
}

TEST_CASE("a file that is to be deleted is kept by another name of it, which takes no space") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  fixture.Keep(u"verbs.tsr", Loss::kDeleted);
  REQUIRE(fixture.Names().size() == 1);
  CHECK(fs::equivalent(fixture.CopiesFolder() / fixture.Names()[0], fixture.folder / "verbs.tsr"));
  fs::remove(fixture.folder / "verbs.tsr");
  fixture.folder.Write("verbs.tsr", "new deck");
  CHECK(fixture.Kept() == std::vector<std::string>{"deck"});
}

TEST_CASE("what is written over, or has other names, or lies elsewhere, is copied") {
  struct Case {
    const char* name;
    Loss loss;
    bool secondName;
    const char* parent;
  };
  const Case cases[] = {
      {"written over", Loss::kWrittenOver, false, "/tmp"},
      {"second name", Loss::kDeleted, true, "/tmp"},
      {"other file system", Loss::kDeleted, false, kInMemory},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    CopyFixture fixture;
    const ScratchFolder decks(c.parent);
    decks.Write("verbs.tsr", "deck");
    if (c.secondName) fs::create_hard_link(decks / "verbs.tsr", decks / "again.tsr");
    fixture.copies.Keep(decks.TextPath(u"verbs.tsr"), c.loss);
    decks.Write("verbs.tsr", "DECK");
    CHECK(fixture.Kept() == std::vector<std::string>{"deck"});
  }
}

TEST_CASE("a file that is written over after all is not kept by another name of it") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  fixture.Keep(u"verbs.tsr", Loss::kDeleted);
  fixture.Keep(u"verbs.tsr", Loss::kWrittenOver);
  fixture.folder.Write("verbs.tsr", "DECK");
  CHECK(fixture.Kept() == std::vector<std::string>{"deck"});
}

TEST_CASE("a deck that was not saved is kept under a name that says so") {
  CopyFixture fixture;
  const Text path = fixture.copies.KeepNotSaved(u"verbs.tsr", "new deck");
  REQUIRE(fixture.Names().size() == 1);
  CHECK(DeckOf(fixture.Names()[0]) == "verbs not saved.tsr");
  CHECK(path == FromUtf8((fixture.CopiesFolder() / fixture.Names()[0]).string()));
  CHECK(fixture.Kept() == std::vector<std::string>{"new deck"});
}

TEST_CASE("a deck that was not saved takes the place of what was kept of it before") {
  CopyFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "unsaved");
  CHECK_FALSE(fixture.copies.KeepNotSaved(u"verbs.tsr", "new deck").empty());
  CHECK(fixture.Kept() == std::vector<std::string>{"new deck"});
}

TEST_CASE("where no other file can be written, what is kept of a deck becomes the one not saved") {
  CopyFixture fixture;
  fixture.copies.KeepUnsaved(u"verbs.tsr", "unsaved");
  const bool ended = EndsWithLimit(RLIMIT_FSIZE, 4, [&] {
    const bool kept = !fixture.copies.KeepNotSaved(u"verbs.tsr", "new deck").empty();
    if (!kept) std::abort();
  });
  CHECK(ended);
  REQUIRE(fixture.Names().size() == 1);
  CHECK(DeckOf(fixture.Names()[0]) == "verbs not saved.tsr");
  CHECK(fixture.Kept() == std::vector<std::string>{"unsaved"});
}

TEST_CASE("a copy that can't be kept is silent") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  const Text deck = fixture.folder.TextPath(u"verbs.tsr");
  fixture.folder.Write("file", "");
  PosixSafetyCopies("").Keep(deck, Loss::kWrittenOver);
  PosixSafetyCopies("/proc/copies").Keep(deck, Loss::kWrittenOver);
  PosixSafetyCopies(fixture.folder / "file").Keep(deck, Loss::kWrittenOver);
  PosixSafetyCopies(fixture.folder / "file/copies").Keep(deck, Loss::kWrittenOver);
  CHECK(PosixSafetyCopies("").KeepNotSaved(u"verbs.tsr", "deck").empty());
  CHECK(PosixSafetyCopies(fixture.folder / "file").KeepNotSaved(u"verbs.tsr", "deck").empty());
  CHECK(NamesIn(fixture.folder.Path()) == std::vector<std::string>{"file", "verbs.tsr"});
}

TEST_CASE("nothing stays open behind a copy") {
  CopyFixture fixture;
  fixture.folder.Write("verbs.tsr", "deck");
  const int lowest = LowestFreeDescriptor();
  fixture.Keep(u"verbs.tsr");
  fixture.Keep(u"missing");
  CHECK(LowestFreeDescriptor() == lowest);
}

}  // namespace tessara::test
