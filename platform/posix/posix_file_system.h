#pragma once

#include "platform/file_system.h"

namespace tessara {

/// The file system of a POSIX machine. Only regular files are opened and deleted; a link stands
/// for what it leads to.
class PosixFileSystem : public FileSystem {
 public:
  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override;
  void Delete(const Text& path) override;
  std::optional<Text> EntryName(const Text& path) override;
};

}  // namespace tessara
