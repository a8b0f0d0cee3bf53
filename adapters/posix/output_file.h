#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/posix/new_file.h"

namespace tessara {

/// A file that appears whole or not at all, with the permissions that the user's mask leaves or
/// those of the file it takes the place of. What fails raises std::system_error.
class OutputFile {
 public:
  /// `number` tells it from others that this process makes meanwhile. A link stands for what it
  /// leads to.
  OutputFile(const std::filesystem::path& path, int number);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  void Write(std::string_view bytes);
  /// All that was written is on the disk.
  void Complete();
  /// Gives the complete file its name.
  void Appear();

 private:
  void Flush();

  std::filesystem::path path_;
  bool exists_ = false;
  std::unique_ptr<NewFile> file_;
  std::string waiting_;  ///< not yet written to the file
};

/// True where something of that name is there, a broken link included.
[[nodiscard]] bool IsThere(const std::filesystem::path& path);

}  // namespace tessara
