#pragma once

#include <mutex>
#include <string>
#include <sys/types.h>

#include "adapters/libreoffice/private_folder.h"

namespace tessara {

/// The hidden server: a process of its own with a profile of its own, which listens on a pipe
/// that only this user can use. It dies with the object, with the program, and when it is killed.
class OfficeProcess {
 public:
  /// Raises error 440 where it can't be started.
  explicit OfficeProcess(std::string officeProgramFolder);
  ~OfficeProcess();
  OfficeProcess(const OfficeProcess&) = delete;
  OfficeProcess& operator=(const OfficeProcess&) = delete;

  [[nodiscard]] const PrivateFolder& Folder() const { return folder_; }

  /// False where it has ended. A server that has ended because it wants to be started again, as
  /// it may with a new profile, is.
  bool Running();
  /// Ends it at once. May be called by any thread.
  void Kill();

 private:
  void Start();

  std::string officeProgramFolder_;
  PrivateFolder folder_;
  std::filesystem::path fonts_;  ///< the server's font configuration; empty for the user's
  std::mutex mutex_;             ///< keeps Kill from a process number that is no longer ours
  pid_t process_ = 0;            ///< 0 where none runs
};

}  // namespace tessara
