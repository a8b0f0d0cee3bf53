#include "adapters/posix/read_ahead.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr std::size_t kBlockSize = 65536;

}  // namespace

std::size_t ReadAhead::ReadAt(std::uint64_t offset, std::span<char> buffer) {
  std::size_t done = 0;
  while (done < buffer.size()) {
    const std::size_t count = ReadBlock(offset + done, buffer.subspan(done));
    if (count == 0) break;
    done += count;
  }
  return done;
}

std::size_t ReadAhead::ReadBlock(std::uint64_t offset, std::span<char> buffer) {
  if (!InBlock(offset)) {
    if (buffer.size() >= kBlockSize) return file_->ReadAt(offset, buffer);
    Fill(offset);
  }
  if (!InBlock(offset)) return 0;
  const std::size_t begin = offset - blockStart_;
  const std::size_t count = std::min(filled_ - begin, buffer.size());
  std::copy_n(block_.data() + begin, count, buffer.data());
  return count;
}

bool ReadAhead::InBlock(std::uint64_t offset) const {
  return offset >= blockStart_ && offset - blockStart_ < filled_;
}

void ReadAhead::Fill(std::uint64_t offset) {
  filled_ = 0;
  block_.resize(kBlockSize);
  blockStart_ = offset;
  filled_ = file_->ReadAt(offset, block_);
}

void ReadAhead::WriteAt(std::uint64_t offset, std::span<const char> bytes) {
  filled_ = 0;
  file_->WriteAt(offset, bytes);
}

}  // namespace tessara
