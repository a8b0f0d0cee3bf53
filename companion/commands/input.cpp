#include "companion/commands/input.h"

#include <array>
#include <cstdio>
#include <memory>
#include <utility>

#include "adapters/posix/posix_file_system.h"
#include "base/run_time_error.h"
#include "base/utf8.h"
#include "companion/cards/complaints.h"
#include "companion/cards/visible_text.h"

namespace tessara {

namespace {

constexpr std::size_t kBlock = 65536;

/// Reads blocks until there is none. `read` fills a block and tells its size.
template <class Read>
void ReadBlocks(Source& source, std::size_t most, const Read& read) {
  std::array<char, kBlock> block;
  while (const std::size_t size = read(block)) {
    if (source.bytes.size() + size > most)
      throw Refused({&source.name}, "more than 16 MB are not read");
    source.bytes.append(block.data(), size);
  }
}

void ReadStandardInput(Source& source, std::size_t most) {
  source.name = "standard input";
  ReadBlocks(source, most, [](std::array<char, kBlock>& block) {
    return std::fread(block.data(), 1, block.size(), stdin);
  });
  if (std::ferror(stdin) != 0) throw Refused({&source.name}, "it cannot be read");
}

std::string Words(const RunTimeError& error) {
  switch (error.Number()) {
    case ErrorNumber::kFileNotFound:
    case ErrorNumber::kPathNotFound:
      return "there is no such file";
    case ErrorNumber::kPermissionDenied:
      return "it may not be read";
    case ErrorNumber::kPathFileAccess:
      return "it is no regular file";
    default:
      return "it cannot be read";
  }
}

void ReadFile(Source& source, std::size_t most) {
  try {
    PosixFileSystem files;
    const std::unique_ptr<File> file = files.Open(FromUtf8(source.name), OpenMode::kRead);
    ReadBlocks(source, most, [&](std::array<char, kBlock>& block) {
      return file->ReadAt(source.bytes.size(), block);
    });
  } catch (const RunTimeError& error) {
    throw Refused({&source.name}, Words(error));
  }
}

}  // namespace

Source ReadInput(const std::string& name, std::size_t most) {
  Source source{name, {}};
  if (name == kStandardStream) {
    ReadStandardInput(source, most);
  } else {
    ReadFile(source, most);
  }
  return source;
}

FileFormat FormatOf(const std::string& fileName, const std::string& told) {
  const auto format = told.empty() ? FormatOfFile(fileName) : FormatNamed(told);
  if (format) return *format;
  const Place place{told.empty() ? &fileName : &told};
  throw Refused(place, "its format is none of " + FormatNames());
}

}  // namespace tessara
