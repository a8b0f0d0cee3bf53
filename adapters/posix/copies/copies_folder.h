#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "adapters/posix/copies/copy_name.h"

namespace tessara {

/// The folder that holds the safety copies: their names, their order, their limits. At most 20 for
/// files of one name and 50 MB in all. What fails raises std::system_error.
class CopiesFolder {
 public:
  /// An empty path stands for no folder.
  explicit CopiesFolder(std::filesystem::path path) : path_(std::move(path)) {}

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// Makes the folder where it is missing, and removes what killed processes have left unfinished.
  void Prepare() const;
  /// A free name for the next copy of a file of that name, behind all others in the order; the
  /// oldest make room for its bytes.
  [[nodiscard]] std::string NameOfNext(const std::string& fileName, std::uintmax_t size,
                                       Moment moment) const;
  /// The copies that are the same file as the one with that status, by other names of it.
  [[nodiscard]] std::vector<std::filesystem::path> NamesOf(const struct stat& status) const;
  /// The names of all files in the folder; none where there is no folder.
  [[nodiscard]] std::vector<std::string> Names() const;

 private:
  std::filesystem::path path_;
};

}  // namespace tessara
