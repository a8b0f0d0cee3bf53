#include "deck/file_number.h"

#include "platform/run_time_error.h"

namespace tessara {

void FileNumber::OpenRandom(const Text& path, OpenMode mode, std::size_t recordLength) {
  OpenFile(path, mode);
  recordLength_ = recordLength;
}

void FileNumber::OpenInput(const Text& path) {
  OpenFile(path, OpenMode::kRead);
}

void FileNumber::OpenFile(const Text& path, OpenMode mode) {
  if (IsOpen()) throw RunTimeError(ErrorNumber::kFileAlreadyOpen);
  file_ = files_.Open(path, mode);
  position_ = 0;
}

std::size_t FileNumber::GetNext(std::span<char> record) {
  return ReadNext(record.first(recordLength_));
}

void FileNumber::Put(std::uint64_t number, std::span<const char> record) {
  OpenedFile().WriteAt((number - 1) * recordLength_, record.first(recordLength_));
}

std::size_t FileNumber::ReadNext(std::span<char> buffer) {
  const std::size_t count = OpenedFile().ReadAt(position_, buffer);
  position_ += count;
  return count;
}

File& FileNumber::OpenedFile() {
  if (!IsOpen()) throw RunTimeError(ErrorNumber::kBadFileNumber);
  return *file_;
}

}  // namespace tessara
