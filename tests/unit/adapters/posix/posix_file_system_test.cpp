#include "adapters/posix/posix_file_system.h"

#include <array>
#include <cstring>
#include <doctest/doctest.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "base/utf8.h"
#include "deck/file/deck_file.h"
#include "tests/support/error_of.h"
#include "tests/support/limited_process.h"
#include "tests/support/open_files.h"
#include "tests/support/sample_deck.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

void MakeSocket(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  REQUIRE(path.size() < sizeof address.sun_path);
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
  REQUIRE(bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0);
  close(socket);
}

/// One in which any user may make and delete files.
struct OpenScratchFolder : ScratchFolder {
  OpenScratchFolder() { std::filesystem::permissions(Path(), std::filesystem::perms::all); }
};

}  // namespace

TEST_CASE("only regular files are opened, and nothing waits for a peer") {
  const ScratchFolder folder;
  REQUIRE(mkfifo((folder / "pipe").c_str(), 0600) == 0);
  MakeSocket(folder / "socket");
  PosixFileSystem files;
  for (const OpenMode mode : {OpenMode::kRead, OpenMode::kReadAndWrite}) {
    for (const Text& path : {folder.TextPath(u"pipe"), folder.TextPath(u"socket"),
                             Text(u"/dev/null"), Text(u"/dev/full")}) {
      CHECK(ErrorOf([&] { (void)files.Open(path, mode); }) == 75);
    }
  }
}

TEST_CASE("only regular files are deleted") {
  const ScratchFolder folder;
  REQUIRE(mkfifo((folder / "pipe").c_str(), 0600) == 0);
  PosixFileSystem files;
  CHECK(ErrorOf([&] { files.Delete(folder.TextPath(u"pipe")); }) == 75);
  CHECK(std::filesystem::exists(folder / "pipe"));
}

TEST_CASE("a path that the system can't name is refused") {
  const ScratchFolder folder;
  folder.Write("a", "x");
  PosixFileSystem files;
  const Text cut = folder.TextPath(u"a") + Text(1, u'\0') + u"b";
  CHECK(ErrorOf([&] { (void)files.Open(cut, OpenMode::kRead); }) == 75);
  CHECK(ErrorOf([&] { files.Delete(cut); }) == 75);
  CHECK_FALSE(files.EntryName(cut).has_value());
  const Text tooLong = folder.TextPath(Text(300, u'x'));
  CHECK(ErrorOf([&] { (void)files.Open(tooLong, OpenMode::kReadAndWrite); }) == 75);
  CHECK_FALSE(files.EntryName(tooLong).has_value());
}

TEST_CASE("a name that is no UTF-8 reaches its file") {
  const ScratchFolder folder;
  folder.Write("caf\xE9.tsr", "x");
  PosixFileSystem files;
  const Text path = folder.TextPath(FromUtf8("caf\xE9.tsr"));
  CHECK(files.EntryName(path) == FromUtf8("caf\xE9.tsr"));
  (void)files.Open(path, OpenMode::kRead);
  files.Delete(path);
  CHECK_FALSE(std::filesystem::exists(folder / "caf\xE9.tsr"));
}

TEST_CASE("a file without permission is refused") {
  PosixFileSystem files;
  // Not even the administrator makes files there.
  CHECK(ErrorOf([&] { (void)files.Open(u"/sys/tessara", OpenMode::kReadAndWrite); }) == 70);
}

TEST_CASE("a file that is kept from being written is not deleted") {
  const OpenScratchFolder folder;
  folder.Write("a", "x");
  std::filesystem::permissions(folder / "a", static_cast<std::filesystem::perms>(0444));
  CHECK(HoldsForAnyUser([&] {
    PosixFileSystem files;
    return ErrorOf([&] { files.Delete(folder.TextPath(u"a")); }) == 70;
  }));
  CHECK(folder.Read("a") == "x");
}

TEST_CASE("a file that is kept from being read is refused") {
  const OpenScratchFolder folder;
  folder.Write("a", "x");
  std::filesystem::permissions(folder / "a", std::filesystem::perms::none);
  CHECK(HoldsForAnyUser([&] {
    PosixFileSystem files;
    return ErrorOf([&] { (void)files.Open(folder.TextPath(u"a"), OpenMode::kRead); }) == 70;
  }));
}

TEST_CASE("deleting and writing through a link keeps the link") {
  const ScratchFolder folder;
  folder.Write("target", "old");
  std::filesystem::create_symlink("target", folder / "link");
  PosixFileSystem files;
  files.Delete(folder.TextPath(u"link"));
  CHECK_FALSE(std::filesystem::exists(folder / "target"));
  files.Open(folder.TextPath(u"link"), OpenMode::kReadAndWrite)->WriteAt(0, std::array{'n'});
  CHECK(std::filesystem::is_symlink(folder / "link"));
  CHECK(folder.Read("target") == "n");
}

TEST_CASE("links that lead nowhere are entries but no files") {
  const ScratchFolder folder;
  std::filesystem::create_symlink("missing", folder / "dangling");
  std::filesystem::create_symlink("loop", folder / "loop");
  PosixFileSystem files;
  CHECK(files.EntryName(folder.TextPath(u"dangling")) == u"dangling");
  CHECK(ErrorOf([&] { (void)files.Open(folder.TextPath(u"dangling"), OpenMode::kRead); }) == 53);
  CHECK(ErrorOf([&] { (void)files.Open(folder.TextPath(u"loop"), OpenMode::kRead); }) == 75);
  CHECK(ErrorOf([&] { files.Delete(folder.TextPath(u"dangling")); }) == 53);
}

TEST_CASE("a new file gets the permissions that the user's mask leaves") {
  const ScratchFolder folder;
  const mode_t mask = umask(027);
  (void)PosixFileSystem().Open(folder.TextPath(u"a"), OpenMode::kReadAndWrite);
  umask(mask);
  const auto permissions = std::filesystem::status(folder / "a").permissions();
  CHECK(permissions == static_cast<std::filesystem::perms>(0640));
}

TEST_CASE("a file in the place of the one deleted last is as private as that was, another is not") {
  const ScratchFolder folder;
  const auto permissionsOf = [&](const char* name) {
    return static_cast<unsigned>(std::filesystem::status(folder / name).permissions());
  };
  const mode_t mask = umask(022);
  PosixFileSystem files;
  for (const unsigned permissions : {0600U, 0640U, 0644U}) {
    folder.Write("deck", "old");
    std::filesystem::permissions(folder / "deck", std::filesystem::perms(permissions));
    files.Delete(folder.TextPath(u"deck"));
    (void)files.Open(folder.TextPath(u"deck"), OpenMode::kReadAndWrite);
    CHECK(permissionsOf("deck") == permissions);
    (void)files.Open(folder.TextPath(u"other"), OpenMode::kReadAndWrite);
    CHECK(permissionsOf("other") == 0644U);
  }
  umask(mask);
}

TEST_CASE("a huge file is read at the places asked for") {
  constexpr std::uintmax_t kTenGigabytes = 10'000'000'000;
  const ScratchFolder folder;
  folder.Write("huge", RecordBytesOf(u"E", u"first", 1));
  std::filesystem::resize_file(folder / "huge", kTenGigabytes);
  PosixFileSystem files;
  std::array<char, 8> bytes{};
  const auto file = files.Open(folder.TextPath(u"huge"), OpenMode::kRead);
  CHECK(file->ReadAt(kTenGigabytes - 4, bytes) == 4);

  FileNumber number(files);
  ProgramState state;
  LoadDeckFromFile(folder.TextPath(u"huge"), state, number, CodePage::Western());
  CHECK(state.deck.cardCount == 200);
  CHECK(state.deck.Cell(1, kCardText) == u"first");
}

TEST_CASE("an open file is not handed on to programs that are started") {
  const ScratchFolder folder;
  const int lowest = LowestFreeDescriptor();
  const auto file = PosixFileSystem().Open(folder.TextPath(u"a"), OpenMode::kReadAndWrite);
  CHECK((fcntl(lowest, F_GETFD) & FD_CLOEXEC) != 0);
}

TEST_CASE("a file that was refused is not left open") {
  const int lowest = LowestFreeDescriptor();
  CHECK(ErrorOf([] { (void)PosixFileSystem().Open(u"/dev/null", OpenMode::kRead); }) == 75);
  CHECK(LowestFreeDescriptor() == lowest);
}

}  // namespace tessara::test
