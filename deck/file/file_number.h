#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "base/text.h"
#include "machine/file_system.h"

namespace tessara {

/// File number 1: the one open file of the deck and import code. Opening it while it is open
/// raises error 55; closing closes whatever it holds, and nothing where it is closed. Reading and
/// writing raise error 52 where nothing is open, and records of a sequential file error 54.
class FileNumber {
 public:
  explicit FileNumber(FileSystem& files) : files_(files) {}

  /// Fixed records of that many bytes. Made where it does not exist when `mode` allows writing.
  void OpenRandom(const Text& path, OpenMode mode, std::size_t recordLength);
  /// Sequential reading.
  void OpenInput(const Text& path);
  [[nodiscard]] bool IsOpen() const { return file_ != nullptr; }
  /// Sequential reading starts over at the first byte.
  void Rewind() { position_ = 0; }
  void Close() { file_.reset(); }
  /// Closes a file that was written. Raises the errors of a file where not all has arrived in it.
  void Finish();

  /// Reads the next record into the front of `record`: its bytes, which are fewer for a short
  /// last one and 0 at the end of the file.
  std::size_t GetNext(std::span<char> record);
  /// Writes record number `number`, counted from 1.
  void Put(std::uint64_t number, std::span<const char> record);
  /// Reads the next bytes, 0 at the end of the file.
  std::size_t ReadNext(std::span<char> buffer);

 private:
  void OpenFile(const Text& path, OpenMode mode, std::size_t recordLength);
  File& OpenedFile();
  File& RandomFile();

  FileSystem& files_;
  std::unique_ptr<File> file_;
  std::uint64_t position_ = 0;
  std::size_t recordLength_ = 0;  ///< 0 for a sequential file
};

}  // namespace tessara
