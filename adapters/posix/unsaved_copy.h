#pragma once

#include <list>
#include <string>
#include <string_view>

#include "adapters/posix/copies_folder.h"
#include "adapters/posix/system_call.h"

namespace tessara {

/// The file with the open deck's unsaved changes. It is locked for as long as the process lives: a
/// lock that is gone tells other processes that its owner has ended. What fails raises
/// std::system_error.
class UnsavedCopy {
 public:
  explicit UnsavedCopy(const CopiesFolder& folder) : folder_(folder) {}

  /// Puts the deck in place of what is kept of it, in one step; a file of its own at first. Nothing
  /// is forced to the disk.
  void Replace(const std::string& fileName, std::string_view deck);
  [[nodiscard]] bool Exists() const { return !name_.empty(); }
  void Drop() noexcept;
  /// Goes on without it: it stays, locked until the process ends.
  void Leave();
  /// Gives it a name that no file has; raises an error where nothing is kept. From now on it is a
  /// copy like any other.
  void Rename(const std::string& name);

 private:
  [[nodiscard]] std::string FreeName(const std::string& fileName);
  void Forget();

  const CopiesFolder& folder_;
  std::string name_;  ///< empty where nothing is kept
  std::list<Descriptor>
      locks_;       ///< the last is the file's while it has a name, the others are left
  int number_ = 0;  ///< of the decks that this process has kept
};

/// The file by that name, locked, if nobody else has it locked; kFailed otherwise.
[[nodiscard]] int OpenLeftFile(const std::filesystem::path& path);

}  // namespace tessara
