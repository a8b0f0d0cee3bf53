#include "deck/file/file_number.h"

#include <utility>

#include "base/run_time_error.h"

namespace tessara {

namespace {

constexpr std::size_t kSequential = 0;

}  // namespace

void FileNumber::OpenRandom(const Text& path, OpenMode mode, std::size_t recordLength) {
  OpenFile(path, mode, recordLength);
}

void FileNumber::OpenInput(const Text& path) {
  OpenFile(path, OpenMode::kRead, kSequential);
}

void FileNumber::OpenFile(const Text& path, OpenMode mode, std::size_t recordLength) {
  if (IsOpen()) throw RunTimeError(ErrorNumber::kFileAlreadyOpen);
  file_ = files_.Open(path, mode);
  position_ = 0;
  recordLength_ = recordLength;
}

void FileNumber::Finish() {
  const std::unique_ptr<File> file = std::move(file_);
  if (file != nullptr) file->Close();
}

std::size_t FileNumber::GetNext(std::span<char> record) {
  const std::size_t count = RandomFile().ReadAt(position_, record.first(recordLength_));
  position_ += count;
  return count;
}

void FileNumber::Put(std::uint64_t number, std::span<const char> record) {
  RandomFile().WriteAt((number - 1) * recordLength_, record.first(recordLength_));
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

File& FileNumber::RandomFile() {
  File& file = OpenedFile();
  if (recordLength_ == kSequential) throw RunTimeError(ErrorNumber::kBadFileMode);
  return file;
}

}  // namespace tessara
