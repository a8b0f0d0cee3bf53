#include "deck/file/file_number.h"

#include <array>
#include <doctest/doctest.h>

#include "base/utf8.h"
#include "tests/support/error_of.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

constexpr std::size_t kLength = 4;

Text NextRecord(FileNumber& file) {
  std::array<char, kLength> record{};
  return FromUtf8({record.data(), file.GetNext(record)});
}

}  // namespace

TEST_CASE("opening the file number while it is open is an error, whatever the file") {
  DeckDisk disk;
  disk.files.Put(u"/decks/a", "");
  disk.file.OpenInput(u"/decks/a");
  CHECK(ErrorOf([&] { disk.file.OpenInput(u"/decks/missing"); }) == 55);
  CHECK(ErrorOf([&] { disk.file.OpenRandom(u"", OpenMode::kReadAndWrite, kLength); }) == 55);
  CHECK(disk.file.IsOpen());
}

TEST_CASE("closing closes whatever is open, and nothing where it is closed") {
  DeckDisk disk;
  disk.file.Close();
  disk.files.Put(u"/decks/a", "");
  disk.file.OpenInput(u"/decks/a");
  disk.file.Close();
  CHECK_FALSE(disk.file.IsOpen());
  disk.file.OpenInput(u"/decks/a");
  CHECK(disk.file.IsOpen());
}

TEST_CASE("a failed opening leaves the file number closed") {
  DeckDisk disk;
  CHECK(ErrorOf([&] { disk.file.OpenInput(u"/decks/missing"); }) == 53);
  CHECK_FALSE(disk.file.IsOpen());
}

TEST_CASE("reading and writing without an open file is an error") {
  DeckDisk disk;
  std::array<char, kLength> record{};
  CHECK(ErrorOf([&] { disk.file.Put(1, record); }) == 52);
  CHECK(ErrorOf([&] { (void)disk.file.ReadNext(record); }) == 52);
  CHECK(ErrorOf([&] { (void)disk.file.GetNext(record); }) == 52);
}

TEST_CASE("a file that is read in sequence has no records") {
  DeckDisk disk;
  disk.files.Put(u"/decks/a", "text");
  disk.file.OpenInput(u"/decks/a");
  std::array<char, kLength> record{};
  CHECK(ErrorOf([&] { disk.file.Put(1, record); }) == 54);
  CHECK(ErrorOf([&] { (void)disk.file.GetNext(record); }) == 54);
  CHECK(disk.files.Bytes(u"/decks/a") == "text");
}

TEST_CASE("sequential reading goes on where it stopped and can start over") {
  DeckDisk disk;
  disk.files.Put(u"/decks/a", "abcdef");
  disk.file.OpenInput(u"/decks/a");
  std::array<char, 4> buffer{};
  CHECK(disk.file.ReadNext(buffer) == 4);
  CHECK(disk.file.ReadNext(buffer) == 2);
  CHECK(disk.file.ReadNext(buffer) == 0);
  disk.file.Rewind();
  CHECK(disk.file.ReadNext(buffer) == 4);
  CHECK(buffer[0] == 'a');
}

TEST_CASE("records are read one after the other, a short last one included") {
  DeckDisk disk;
  disk.files.Put(u"/decks/a", "aaaabbbbcc");
  disk.file.OpenRandom(u"/decks/a", OpenMode::kRead, kLength);
  CHECK(NextRecord(disk.file) == u"aaaa");
  CHECK(NextRecord(disk.file) == u"bbbb");
  CHECK(NextRecord(disk.file) == u"cc");
  CHECK(NextRecord(disk.file).empty());
  CHECK(NextRecord(disk.file).empty());
}

TEST_CASE("a record is written at its number, counted from 1") {
  DeckDisk disk;
  disk.file.OpenRandom(u"/decks/a", OpenMode::kReadAndWrite, kLength);
  disk.file.Put(2, std::array{'b', 'b', 'b', 'b'});
  disk.file.Put(1, std::array{'a', 'a', 'a', 'a'});
  CHECK(disk.files.Bytes(u"/decks/a") == "aaaabbbb");
}

TEST_CASE("each opening reads from the front") {
  DeckDisk disk;
  disk.files.Put(u"/decks/a", "aaaabbbb");
  for (int time = 0; time < 2; ++time) {
    disk.file.OpenRandom(u"/decks/a", OpenMode::kRead, kLength);
    CHECK(NextRecord(disk.file) == u"aaaa");
    disk.file.Close();
  }
}

}  // namespace tessara::test
