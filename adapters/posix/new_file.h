#pragma once

#include <filesystem>
#include <string>

#include "adapters/posix/system_call.h"

namespace tessara {

/// A file that comes into its folder whole or not at all, for its owner only. What fails raises
/// std::system_error.
class NewFile {
 public:
  /// What it is until it has its name: nothing that anybody can see or a killed process leave
  /// behind, or, where the file system can't do that, a hidden file.
  enum class Kind { kNameless, kHidden };
  /// The label of a hidden file that stays for longer, to be written again.
  static constexpr const char* kSpareLabel = "-spare";

  /// A hidden one where a nameless one can't be made. A process that makes several at a time in one
  /// folder gives each a label.
  explicit NewFile(std::filesystem::path folder, Kind kind = Kind::kNameless,
                   const std::string& label = {});
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  /// Open for writing.
  [[nodiscard]] int Get() const { return file_.Get(); }
  /// Brings what was written to the disk, then the file to its name, then the name to the disk.
  /// The name must be free.
  void NameIt(const std::string& name);
  /// Brings what was written to the disk.
  void Force() const;
  /// Gives a hidden file its name, in one step in place of the file that has it.
  void TakePlaceOf(const std::string& name);
  /// Swaps the names of a hidden file and of the one that has that name, in one step, and with them
  /// the open files. False where the file system can't.
  [[nodiscard]] bool SwapsWith(const std::string& name, Descriptor& opened);
  /// Where a hidden file lies; empty for any other.
  [[nodiscard]] const std::filesystem::path& HiddenPath() const { return hidden_; }
  /// Hands the open file over to the caller.
  [[nodiscard]] int Release() { return file_.Release(); }

  /// Removes what killed processes have left in the folder an hour ago or earlier.
  static void RemoveUnfinished(const std::filesystem::path& folder);
  /// Whether a file of that name is the spare of a process, which may still live.
  [[nodiscard]] static bool IsSpare(const std::string& name);

 private:
  [[nodiscard]] int OpenFile(Kind kind, const std::string& label);
  void TakeName(const std::string& name);

  std::filesystem::path folder_;
  std::filesystem::path hidden_;  ///< empty for a nameless file, and once it has its name
  Descriptor file_;
};

/// Brings the folder's entries to the disk.
void SyncFolder(const std::filesystem::path& folder);

/// Makes the folder and those above it that are missing, for their owner only.
void MakeFolders(const std::filesystem::path& folder);

}  // namespace tessara
