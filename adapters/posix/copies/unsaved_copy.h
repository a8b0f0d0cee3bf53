#pragma once

#include <list>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/posix/copies/copies_folder.h"
#include "adapters/posix/swapped_file.h"
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
  void Drop() noexcept;
  /// Goes on without it: it stays, locked until the process ends.
  void Leave();
  /// Gives it a name that no file has; raises an error where nothing is kept. From now on it is a
  /// copy like any other.
  void Rename(const std::string& name);

 private:
  [[nodiscard]] std::string FreeName(const std::string& fileName);

  const CopiesFolder& folder_;
  std::optional<SwappedFile> file_;
  std::list<Descriptor> left_;  ///< open for their locks
  int number_ = 0;              ///< of the decks that this process has kept
};

}  // namespace tessara
