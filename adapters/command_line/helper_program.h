#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tessara {

/// Runs a program with the user's environment and waits for it. Its exit status, 128 and the
/// signal's number where one ended it: meanwhile SIGHUP, SIGINT and SIGTERM are handed on to it.
/// Raises std::system_error where it can't be started.
[[nodiscard]] int RunAndWait(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments);

/// A folder for its owner only, gone with this; with the next print job where the program is
/// killed.
class PrivateScratch {
 public:
  PrivateScratch();
  PrivateScratch(const PrivateScratch&) = delete;
  PrivateScratch& operator=(const PrivateScratch&) = delete;
  ~PrivateScratch();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace tessara
