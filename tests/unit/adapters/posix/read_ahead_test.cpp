#include "adapters/posix/read_ahead.h"

#include <algorithm>
#include <doctest/doctest.h>
#include <string>

#include "base/run_time_error.h"

namespace tessara::test {

namespace {

/// A file that counts its reads, the first `fails` of which fail.
struct CountedFile : File {
  std::string bytes;
  int reads = 0;
  int fails = 0;

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    ++reads;
    if (fails-- > 0) throw RunTimeError(ErrorNumber::kDeviceIo);
    if (offset >= bytes.size()) return 0;
    const std::size_t count = std::min(buffer.size(), bytes.size() - offset);
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), count, buffer.begin());
    return count;
  }
  void WriteAt(std::uint64_t offset, std::span<const char> written) override {
    bytes.replace(offset, written.size(), written.data(), written.size());
  }
};

std::string Numbered(std::size_t size) {
  std::string bytes;
  while (bytes.size() < size) bytes += std::to_string(bytes.size()) + ",";
  return bytes.substr(0, size);
}

struct Desk {
  explicit Desk(std::size_t size) : counted(new CountedFile), file(std::unique_ptr<File>(counted)) {
    counted->bytes = Numbered(size);
  }
  std::string Read(std::uint64_t offset, std::size_t size) {
    std::string read(size, '\0');
    read.resize(file.ReadAt(offset, read));
    return read;
  }

  CountedFile* counted;
  ReadAhead file;
};

}  // namespace

TEST_CASE("a file read ahead gives the bytes of the file, whatever the pieces") {
  for (const std::size_t size : {0U, 1U, 1192U, 65535U, 65536U, 65537U, 300000U}) {
    for (const std::size_t piece : {1192U, 4096U, 65536U, 70000U}) {
      Desk desk(size);
      std::string all;
      for (std::string read = desk.Read(0, piece); !read.empty();
           read = desk.Read(all.size(), piece)) {
        all += read;
      }
      CHECK(all == desk.counted->bytes);
    }
  }
}

TEST_CASE("small pieces one after the other take few reads of the file") {
  Desk desk(238400);
  for (std::uint64_t record = 0; record < 200; ++record) {
    CHECK(desk.Read(record * 1192, 1192).size() == 1192);
  }
  CHECK(desk.counted->reads <= 5);
}

TEST_CASE("reading back before the block and beyond the end is right") {
  Desk desk(200000);
  const std::string bytes = desk.counted->bytes;
  CHECK(desk.Read(150000, 10) == bytes.substr(150000, 10));
  CHECK(desk.Read(5, 10) == bytes.substr(5, 10));
  CHECK(desk.Read(199995, 10) == bytes.substr(199995));
  CHECK(desk.Read(200000, 10).empty());
  CHECK(desk.Read(900000, 10).empty());
}

TEST_CASE("a block that can't be read raises its error and is read again the next time") {
  Desk desk(3000);
  desk.counted->fails = 1;
  CHECK_THROWS_AS(desk.Read(0, 10), RunTimeError);
  CHECK(desk.Read(0, 10) == desk.counted->bytes.substr(0, 10));
}

TEST_CASE("what is written is read back") {
  Desk desk(3000);
  CHECK(desk.Read(0, 2) == "0,");
  desk.file.WriteAt(0, std::string("xy"));
  CHECK(desk.Read(0, 2) == "xy");
}

}  // namespace tessara::test
