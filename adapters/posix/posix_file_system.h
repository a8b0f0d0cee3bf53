#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

#include "machine/file_system.h"

namespace tessara {

/// The file system of a POSIX machine. Only regular files are opened and deleted; a link stands
/// for what it leads to. A file that takes the place of the one deleted last is as private as that
/// one was.
class PosixFileSystem : public FileSystem {
 public:
  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override;
  void Delete(const Text& path) override;
  void TrySaving(const Text& path) override;
  std::optional<Text> EntryName(const Text& path) override;

 private:
  struct Deleted {
    std::string name;
    mode_t permissions = 0;
  };

  [[nodiscard]] mode_t PermissionsOfNew(const std::string& name) const;

  std::optional<Deleted> deleted_;
};

}  // namespace tessara
