#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/types.h>

namespace tessara {

using Moment = std::chrono::system_clock::time_point;

/// What the name of a copy tells.
struct NamedCopy {
  std::string fileName;      ///< "verbs.tsr", the same for all copies of files of one name
  std::uint64_t number = 0;  ///< the higher, the later it was made; 0 in names without one
};

/// Nobody makes as many; but files can be given any name. One of this number is not counted on.
inline constexpr std::uint64_t kHighestCopyNumber = 999'999'999'999;

/// Name of the copy of a file: its number behind the moment in local time at which it was made,
/// "verbs 2026-11-21 08-13-27-0042.tsr" of "verbs.tsr". A name that would be too long for a file
/// loses the end of its stem.
[[nodiscard]] std::string CopyName(const std::string& fileName, Moment moment,
                                   std::uint64_t number);
/// Nothing for a name that CopyName does not give. Names with the thousandths of a second, three
/// digits, in the place of the number are older than numbers.
[[nodiscard]] std::optional<NamedCopy> ReadCopyName(const std::string& copyName);

/// The file name of a deck that could not be saved: "verbs not saved.tsr" of "verbs.tsr".
[[nodiscard]] std::string NotSavedName(const std::string& fileName);

/// Name of the file in which a process keeps its unsaved deck, the `number`-th of its run:
/// "verbs (unsaved 4711-1).tsr" of "verbs.tsr", "verbs" and the like.
[[nodiscard]] std::string UnsavedName(const std::string& fileName, pid_t process, int number);
/// "verbs.tsr"; nothing for a name that UnsavedName does not give.
[[nodiscard]] std::optional<std::string> ReadUnsavedName(const std::string& name);

}  // namespace tessara
