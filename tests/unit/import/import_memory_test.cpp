#include <algorithm>
#include <doctest/doctest.h>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "tests/support/memory_use.h"
#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

namespace {

/// A disk with one text: a beginning, and then a line again and again up to the size.
class LongTextDisk : public FileSystem {
 public:
  LongTextDisk(std::string_view beginning, std::string_view line, std::uint64_t size)
      : beginning_(beginning), line_(line), size_(size) {}

  long mostResident = 0;

  std::unique_ptr<File> Open(const Text& /*path*/, OpenMode /*mode*/) override {
    return std::make_unique<LongText>(*this);
  }
  void Delete(const Text& /*path*/) override {}
  void TrySaving(const Text& /*path*/) override {}
  std::optional<Text> EntryName(const Text& path) override { return path; }

 private:
  class LongText : public File {
   public:
    explicit LongText(LongTextDisk& disk) : disk_(disk) {}
    std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
      disk_.mostResident = std::max(disk_.mostResident, ResidentBytes());
      std::size_t count = 0;
      for (; count < buffer.size() && offset + count < disk_.size_; ++count) {
        buffer[count] = disk_.ByteAt(offset + count);
      }
      return count;
    }
    void WriteAt(std::uint64_t /*offset*/, std::span<const char> /*bytes*/) override {}

   private:
    LongTextDisk& disk_;
  };

  [[nodiscard]] char ByteAt(std::uint64_t offset) const {
    if (offset < beginning_.size()) return beginning_[offset];
    return line_[(offset - beginning_.size()) % line_.size()];
  }

  std::string_view beginning_;
  std::string_view line_;
  std::uint64_t size_;
};

constexpr std::uint64_t kMegabyte = 1'000'000;

/// The most memory that the import holds at any read, above what the process had before.
long MemoryOfImport(std::string_view line, std::uint64_t size) {
  LongTextDisk disk("STD\r\n1.\r\n*>F\r\n", line, size);
  FileNumber fileNumber(disk);
  ImportFixture fixture;
  const long before = ResidentBytes();
  ImportContext context = fixture.Context();
  const ImportContext ofDisk{context.state,    fileNumber,    context.messages,
                             context.codePage, context.today, context.setCardTotal,
                             context.showDeck};
  ImportStandard(kTextPath, ofDisk);
  CHECK(fixture.state.deck.Cell(1, kCardText).size() <= kLongestImportedText);
  return disk.mostResident - before;
}

}  // namespace

TEST_CASE("a card without end takes the memory of the longest card") {
  const std::uint64_t size = (HeapBytes() == 0 ? 2 : 40) * kMegabyte;
  CHECK(MemoryOfImport("a line of a card that never ends\r\n", size) < 8 * long{kMegabyte});
}

TEST_CASE("a line without end takes the memory of the longest line") {
  const std::uint64_t size = (HeapBytes() == 0 ? 2 : 40) * kMegabyte;
  CHECK(MemoryOfImport("x", size) < 24 * long{kMegabyte});
}

}  // namespace tessara::test
