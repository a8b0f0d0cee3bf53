#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "adapters/posix/new_file.h"
#include "adapters/posix/system_call.h"

namespace tessara {

/// A file that is replaced often, each time in one step: it is whole at any time. The bytes go into
/// a hidden spare file, over those of the time before the last, and the two swap names, so that no
/// space is taken and none given back. Both are locked. What fails raises std::system_error and
/// leaves the file as it was.
class SwappedFile {
 public:
  /// Makes the file; the name must be free.
  SwappedFile(std::filesystem::path folder, const std::string& name, std::string_view bytes);

  void Replace(std::string_view bytes);
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// Hands the open file over to the caller.
  [[nodiscard]] int Release() { return file_.Release(); }

 private:
  [[nodiscard]] bool SpareIsUsable() const;
  [[nodiscard]] bool SwapsWithSpare();
  void WriteSpare(std::string_view bytes);
  void GiveNameToSpare();

  std::filesystem::path folder_;
  std::filesystem::path path_;
  Descriptor file_{kFailed};
  std::unique_ptr<NewFile> spare_;  ///< its end removes it
};

}  // namespace tessara
