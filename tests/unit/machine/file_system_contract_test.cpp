#include <array>
#include <doctest/doctest.h>

#include "adapters/posix/posix_file_system.h"
#include "base/utf8.h"
#include "machine/file_system.h"
#include "tests/support/error_of.h"
#include "tests/support/fakes/memory_files.h"
#include "tests/support/scratch_folder.h"

// What every file system keeps to: the real one and the one of the tests.

namespace tessara::test {

namespace {

struct RealDisk {
  ScratchFolder folder;
  PosixFileSystem files;

  [[nodiscard]] Text Path(const Text& name) const { return folder.TextPath(name); }
  void Put(const Text& name, const std::string& bytes) { folder.Write(ToUtf8(name), bytes); }
  [[nodiscard]] std::string Bytes(const Text& name) const { return folder.Read(ToUtf8(name)); }
  void MakeFolder(const Text& name) { std::filesystem::create_directory(folder / ToUtf8(name)); }
};

struct MemoryDisk {
  MemoryFiles files;

  MemoryDisk() { files.folders.insert(u"/disk"); }
  [[nodiscard]] static Text Path(const Text& name) { return u"/disk/" + name; }
  void Put(const Text& name, const std::string& bytes) { files.Put(Path(name), bytes); }
  [[nodiscard]] std::string Bytes(const Text& name) const { return files.Bytes(Path(name)); }
  void MakeFolder(const Text& name) { files.folders.insert(Path(name)); }
};

std::string Read(File& file, std::uint64_t offset, std::size_t count) {
  std::string buffer(count, '?');
  buffer.resize(file.ReadAt(offset, buffer));
  return buffer;
}

constexpr OpenMode kBothModes[] = {OpenMode::kRead, OpenMode::kReadAndWrite};

}  // namespace

TEST_CASE_TEMPLATE("a missing file is found missing by reading and made by writing", Disk, RealDisk,
                   MemoryDisk) {
  Disk disk;
  CHECK(ErrorOf([&] { (void)disk.files.Open(disk.Path(u"a"), OpenMode::kRead); }) == 53);
  CHECK_FALSE(disk.files.EntryName(disk.Path(u"a")).has_value());
  (void)disk.files.Open(disk.Path(u"a"), OpenMode::kReadAndWrite);
  CHECK(disk.files.EntryName(disk.Path(u"a")) == u"a");
  CHECK(disk.Bytes(u"a").empty());
}

TEST_CASE_TEMPLATE("what can't be opened is told by its number", Disk, RealDisk, MemoryDisk) {
  Disk disk;
  disk.MakeFolder(u"folder");
  disk.Put(u"file", "x");
  for (const OpenMode mode : kBothModes) {
    CHECK(ErrorOf([&] { (void)disk.files.Open(u"", mode); }) == 75);
    CHECK(ErrorOf([&] { (void)disk.files.Open(disk.Path(u"folder"), mode); }) == 75);
    CHECK(ErrorOf([&] { (void)disk.files.Open(disk.Path(u"missing/a"), mode); }) == 76);
    CHECK(ErrorOf([&] { (void)disk.files.Open(disk.Path(u"file/a"), mode); }) == 76);
  }
}

TEST_CASE_TEMPLATE("bytes are read from any place up to the end", Disk, RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"a", std::string("ab\0\xFF"
                             "e",
                             5));
  const auto file = disk.files.Open(disk.Path(u"a"), OpenMode::kRead);
  CHECK(Read(*file, 0, 5) == std::string("ab\0\xFF"
                                         "e",
                                         5));
  CHECK(Read(*file, 1, 2) == std::string("b\0", 2));
  CHECK(Read(*file, 3, 9) ==
        "\xFF"
        "e");
  CHECK(Read(*file, 5, 1).empty());
  CHECK(Read(*file, 1000000, 1).empty());
  CHECK(Read(*file, 0, 0).empty());
}

TEST_CASE_TEMPLATE("writing changes its own bytes and lengthens the file where needed", Disk,
                   RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"a", "abcdef");
  const auto file = disk.files.Open(disk.Path(u"a"), OpenMode::kReadAndWrite);
  CHECK(disk.Bytes(u"a") == "abcdef");
  file->WriteAt(2, std::array{'X', 'Y'});
  CHECK(disk.Bytes(u"a") == "abXYef");
  file->WriteAt(5, std::array{'1', '2', '3'});
  CHECK(disk.Bytes(u"a") == "abXYe123");
  file->WriteAt(10, std::array{'!'});
  CHECK(disk.Bytes(u"a") == std::string("abXYe123\0\0!", 11));
  CHECK(Read(*file, 8, 3) == std::string("\0\0!", 3));
  file->WriteAt(0, {});
  CHECK(disk.Bytes(u"a").size() == 11);
}

TEST_CASE_TEMPLATE("what one writes another one reads at once, and finds behind the closing", Disk,
                   RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"a", "abc");
  const auto writer = disk.files.Open(disk.Path(u"a"), OpenMode::kReadAndWrite);
  const auto reader = disk.files.Open(disk.Path(u"a"), OpenMode::kRead);
  writer->WriteAt(1, std::array{'X'});
  CHECK(Read(*reader, 0, 3) == "aXc");
  CHECK(ErrorOf([&] { writer->Close(); }) == 0);
  CHECK(disk.Bytes(u"a") == "aXc");
  CHECK(Read(*reader, 0, 3) == "aXc");
}

TEST_CASE_TEMPLATE("an open file that is deleted can be read and written to its closing", Disk,
                   RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"a", "abc");
  const auto open = disk.files.Open(disk.Path(u"a"), OpenMode::kReadAndWrite);
  disk.files.Delete(disk.Path(u"a"));
  open->WriteAt(3, std::array{'d'});
  CHECK(Read(*open, 0, 9) == "abcd");
  CHECK_FALSE(disk.files.EntryName(disk.Path(u"a")).has_value());
  (void)disk.files.Open(disk.Path(u"a"), OpenMode::kReadAndWrite);
  CHECK(disk.Bytes(u"a").empty());
}

TEST_CASE_TEMPLATE("a file that was opened to be read takes no bytes", Disk, RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"a", "abc");
  const auto open = disk.files.Open(disk.Path(u"a"), OpenMode::kRead);
  CHECK(ErrorOf([&] { open->WriteAt(0, std::array{'X'}); }) == 57);
  CHECK(disk.Bytes(u"a") == "abc");
}

TEST_CASE_TEMPLATE("a deleted file is gone; only files can be deleted", Disk, RealDisk,
                   MemoryDisk) {
  Disk disk;
  disk.Put(u"a", "x");
  disk.MakeFolder(u"folder");
  disk.files.Delete(disk.Path(u"a"));
  CHECK_FALSE(disk.files.EntryName(disk.Path(u"a")).has_value());
  CHECK(ErrorOf([&] { disk.files.Delete(disk.Path(u"a")); }) == 53);
  CHECK(ErrorOf([&] { disk.files.Delete(disk.Path(u"missing/a")); }) == 53);
  CHECK(ErrorOf([&] { disk.files.Delete(disk.Path(u"folder")); }) == 75);
  CHECK(ErrorOf([&] { disk.files.Delete(u""); }) == 75);
  CHECK(disk.files.EntryName(disk.Path(u"folder")) == u"folder");
}

TEST_CASE_TEMPLATE("a place for a file is tried without a trace, with a file there or without",
                   Disk, RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"old", "x");
  disk.files.TrySaving(disk.Path(u"old"));
  CHECK(disk.Bytes(u"old") == "x");
  disk.files.TrySaving(disk.Path(u"new"));
  CHECK_FALSE(disk.files.EntryName(disk.Path(u"new")).has_value());
}

TEST_CASE_TEMPLATE("a place where no file can be raises what its opening would", Disk, RealDisk,
                   MemoryDisk) {
  Disk disk;
  disk.MakeFolder(u"folder");
  disk.Put(u"file", "x");
  CHECK(ErrorOf([&] { disk.files.TrySaving(u""); }) == 75);
  CHECK(ErrorOf([&] { disk.files.TrySaving(disk.Path(u"folder")); }) == 75);
  CHECK(ErrorOf([&] { disk.files.TrySaving(disk.Path(u"missing/a")); }) == 76);
  CHECK(ErrorOf([&] { disk.files.TrySaving(disk.Path(u"file/a")); }) == 76);
}

TEST_CASE_TEMPLATE("entries are files and folders, hidden ones included, by their exact names",
                   Disk, RealDisk, MemoryDisk) {
  Disk disk;
  disk.Put(u"Deck.tsr", "x");
  disk.Put(u".hidden", "x");
  disk.Put(u"two words", "x");
  disk.Put(u"caf\u00E9 \xD83C\xDCA1", "x");
  disk.MakeFolder(u".folder");
  for (const char16_t* const name :
       {u"Deck.tsr", u".hidden", u"two words", u"caf\u00E9 \xD83C\xDCA1", u".folder"}) {
    CHECK(disk.files.EntryName(disk.Path(name)) == Text(name));
  }
  for (const char16_t* const name : {u"deck.tsr", u"Deck", u"Deck.tsr/x", u"missing/x"}) {
    CHECK_FALSE(disk.files.EntryName(disk.Path(name)).has_value());
  }
  CHECK_FALSE(disk.files.EntryName(u"").has_value());
}

}  // namespace tessara::test
