// The real disk, where the system refuses to write or to open: nothing is reported that must not
// be, nothing is left half done where it must not be, and the program goes on.

#include <doctest/doctest.h>

#include "adapters/freedesktop/user_document_types.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/limited_process.h"
#include "tests/support/open_files.h"
#include "tests/support/packaged_type.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

constexpr int kCards = 3;

void DeclareDocuments(const ScratchFolder& folder) {
  UserDocumentTypes(folder / "data", [](const auto&) {}).Declare(PackagedType(folder / "program"));
}

ScratchFolder& WithProgramIcons(ScratchFolder& folder) {
  std::filesystem::create_directories(folder / "program/icons/hicolor/16x16/apps");
  folder.Write("program/icons/hicolor/16x16/apps/tessara.png", "icon");
  return folder;
}

}  // namespace

TEST_CASE(
    "a disk that takes only so many bytes of a file stops no save, and the old deck is kept") {
  for (rlim_t bytes = 0; bytes <= (kCards + 3) * kRecordSize; bytes += kRecordSize / 2) {
    CAPTURE(bytes);
    const ScratchFolder folder;
    const std::string old = ProgramFixture::DeckBytes(kCards);
    folder.Write(DiskFixture::kDeckName, old);
    DiskFixture fixture(folder);
    fixture.StartAndOpenDeck();
    fixture.ChangeCards();
    CHECK(EndsWithLimit(RLIMIT_FSIZE, bytes, [&] {
      fixture.Save();
      if (fixture.renderer.exitStatus != -1 || fixture.fakes.messages.shown.size() != 1) _exit(1);
    }));
    // A deck that is deleted needs no space to be kept.
    CHECK(KeptIn(folder) == std::vector<std::string>{old});
    CHECK(folder.Read(DiskFixture::kDeckName).size() == std::min<std::size_t>(bytes, old.size()));
    fixture.Save();
    CHECK(folder.Read(DiskFixture::kDeckName).size() == old.size());
  }
}

TEST_CASE("a process that may open only so many files saves what it can") {
  if (!kOpenFilesCanBeLimited) return;
  for (int files = 0; files <= 6; ++files) {
    CAPTURE(files);
    const ScratchFolder folder;
    folder.Write(DiskFixture::kDeckName, ProgramFixture::DeckBytes(kCards));
    DiskFixture fixture(folder);
    fixture.StartAndOpenDeck();
    fixture.ChangeCards();
    CHECK(EndsWithLimit(RLIMIT_NOFILE, static_cast<rlim_t>(LowestFreeDescriptor() + files),
                        [&] { fixture.Save(); }));
    for (const std::string& bytes : KeptIn(folder))
      CHECK(bytes == ProgramFixture::DeckBytes(kCards));
    fixture.Save();
    CHECK(folder.Read(DiskFixture::kDeckName).size() == (kCards + 2) * kRecordSize);
  }
}

TEST_CASE("an association that can't write or open its files is silent and leaves the rest") {
  for (int limit = 0; limit <= 4; ++limit) {
    CAPTURE(limit);
    ScratchFolder folder;
    WithProgramIcons(folder);
    CHECK(EndsWithLimit(RLIMIT_FSIZE, static_cast<rlim_t>(limit * 100),
                        [&] { DeclareDocuments(folder); }));
    if (kOpenFilesCanBeLimited) {
      CHECK(EndsWithLimit(RLIMIT_NOFILE, static_cast<rlim_t>(LowestFreeDescriptor() + limit),
                          [&] { DeclareDocuments(folder); }));
    }
    DeclareDocuments(folder);
    CHECK(NamesIn(folder / "data") == std::vector<std::string>{"applications", "icons", "mime"});
  }
}

TEST_CASE("an association whose folders or files are taken is silent and declares what it can") {
  for (const std::string taken :
       {"mime", "mime/packages", "mime/packages/tessara.xml", "applications",
        "applications/tessara.desktop", "icons", "icons/hicolor", "icons/hicolor/16x16",
        "icons/hicolor/16x16/apps/tessara.png"}) {
    CAPTURE(taken);
    for (const bool byFile : {true, false}) {
      ScratchFolder folder;
      WithProgramIcons(folder);
      const std::filesystem::path obstacle = folder / ("data/" + taken);
      std::filesystem::create_directories(byFile ? obstacle.parent_path() : obstacle / "full");
      if (byFile) std::ofstream(obstacle) << "mine";
      CHECK_NOTHROW(DeclareDocuments(folder));
      if (!taken.starts_with("applications")) {
        CHECK(std::filesystem::is_regular_file(folder / "data/applications/tessara.desktop"));
      }
    }
  }
}

}  // namespace tessara::test
