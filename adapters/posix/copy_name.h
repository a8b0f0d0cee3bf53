#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace tessara {

using Moment = std::chrono::system_clock::time_point;

/// Name of the copy of a file that was made at that moment, in local time:
/// "verbs 2026-11-21 08-13-27-123.tsr" of "verbs.tsr". A name that would be too long for a file
/// loses the end of its stem.
[[nodiscard]] std::string CopyName(const std::string& fileName, Moment moment);

/// The name without its moment: "verbs.tsr", the same for all copies of files of one name. Nothing
/// for a name that CopyName does not give.
[[nodiscard]] std::optional<std::string> NameWithoutMoment(const std::string& copyName);

}  // namespace tessara
