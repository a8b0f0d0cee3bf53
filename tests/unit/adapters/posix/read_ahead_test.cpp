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

struct Fixture {
  explicit Fixture(std::size_t size)
      : counted(new CountedFile), file(std::unique_ptr<File>(counted)) {
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
      Fixture fixture(size);
      std::string all;
      for (std::string read = fixture.Read(0, piece); !read.empty();
           read = fixture.Read(all.size(), piece)) {
        all += read;
      }
      CHECK(all == fixture.counted->bytes);
    }
  }
}

TEST_CASE("small pieces one after the other take few reads of the file") {
  Fixture fixture(238400);
  for (std::uint64_t record = 0; record < 200; ++record) {
    CHECK(fixture.Read(record * 1192, 1192).size() == 1192);
  }
  CHECK(fixture.counted->reads <= 5);
}

TEST_CASE("reading back before the block and beyond the end is right") {
  Fixture fixture(200000);
  const std::string bytes = fixture.counted->bytes;
  CHECK(fixture.Read(150000, 10) == bytes.substr(150000, 10));
  CHECK(fixture.Read(5, 10) == bytes.substr(5, 10));
  CHECK(fixture.Read(199995, 10) == bytes.substr(199995));
  CHECK(fixture.Read(200000, 10).empty());
  CHECK(fixture.Read(900000, 10).empty());
}

TEST_CASE("a block that can't be read raises its error and is read again the next time") {
  Fixture fixture(3000);
  fixture.counted->fails = 1;
  CHECK_THROWS_AS(fixture.Read(0, 10), RunTimeError);
  CHECK(fixture.Read(0, 10) == fixture.counted->bytes.substr(0, 10));
}

TEST_CASE("what is written is read back") {
  Fixture fixture(3000);
  CHECK(fixture.Read(0, 2) == "0,");
  fixture.file.WriteAt(0, std::string("xy"));
  CHECK(fixture.Read(0, 2) == "xy");
}

}  // namespace tessara::test
