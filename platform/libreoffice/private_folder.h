#pragma once

#include <filesystem>

namespace tessara {

/// A folder for one run of the server: its profile, its pipe, its temporary files. Gone with the
/// object; what a killed program has left behind goes when the next one is made.
class PrivateFolder {
 public:
  /// Raises error 440 where none can be made.
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace tessara
