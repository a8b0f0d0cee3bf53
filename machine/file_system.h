#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "base/text.h"

namespace tessara {

enum class OpenMode {
  kRead,          ///< must exist
  kReadAndWrite,  ///< made where it does not exist, kept where it does
};

/// An open file of bytes. The destructor closes one that is still open, and reports no error.
/// All operations raise the run-time errors 57 (device), 61 (disk full), 70, 71, 75.
class File {
 public:
  virtual ~File() = default;
  /// Reads up to `buffer.size()` bytes at the byte offset; fewer only at the end of the file.
  virtual std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) = 0;
  virtual void WriteAt(std::uint64_t offset, std::span<const char> bytes) = 0;
  /// Raises an error where what was written has not all arrived. Nothing is called behind it.
  virtual void Close() {}
};

/// What the program asks of the file system. Paths are native; "/" separates.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  /// Raises 53 (not found), 67 (too many open files), 70 (permission), 75 (no regular file, an
  /// empty path), 76 (no such folder). Never waits for a pipe's peer.
  virtual std::unique_ptr<File> Open(const Text& path, OpenMode mode) = 0;
  /// Raises 53 where there is none, 70, 75.
  virtual void Delete(const Text& path) = 0;
  /// Finds out whether a file can be saved as `path`, by trying and not by permissions: one that is
  /// there is opened for writing and not changed, else one of another name is made beside it and
  /// removed at once. Raises what Open raises.
  virtual void TrySaving(const Text& path) = 0;
  /// The name, as it stands in its folder, of the entry that `path` names; hidden entries and
  /// folders included. Nothing where there is none.
  virtual std::optional<Text> EntryName(const Text& path) = 0;
};

}  // namespace tessara
