#pragma once

#include <array>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace tessara {

/// While this lives, SIGHUP, SIGINT and SIGTERM end what RunAndWait waits for, and this program
/// goes on to an end of its own. One that is ignored stays so.
class EndingSignals {
 public:
  EndingSignals();
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;
  ~EndingSignals();

 private:
  std::array<struct ::sigaction, 3> before_{};
};

/// Runs a program with the user's environment and waits for it. Its exit status, 128 and the
/// signal's number where one ended it. Raises std::system_error where it can't be started.
[[nodiscard]] int RunAndWait(const std::filesystem::path& program,
                             const std::vector<std::string>& arguments);

/// A folder for its owner only, gone with this; where the program is killed, with the next job that
/// prints cards.
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
