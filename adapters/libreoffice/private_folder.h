#pragma once

#include <filesystem>
#include <memory>

#include "adapters/libreoffice/cleaner.h"

namespace tessara {

/// A folder for one run of the server: its profile, its pipe, its temporary files. Gone with the
/// object or the program; what a killed machine has left behind goes when the next one is made.
class PrivateFolder {
 public:
  /// Raises error 440 where none can be made.
  PrivateFolder();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// A file elsewhere, to go with the folder.
  void AlsoRemove(const std::filesystem::path& file) const { cleaner_->AlsoRemove(file.string()); }

 private:
  std::filesystem::path path_;
  std::unique_ptr<Cleaner> cleaner_;
};

}  // namespace tessara
