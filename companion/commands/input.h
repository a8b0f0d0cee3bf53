#pragma once

#include <optional>
#include <string>

#include "companion/formats/file_format.h"

namespace tessara {

/// What stands for standard input or output.
inline constexpr const char* kStandardStream = "-";

/// A file named on the command line, read whole: a regular file, or standard input. Raises Refused
/// for one that can't be read or is larger than `most` bytes.
[[nodiscard]] Source ReadInput(const std::string& name, std::size_t most = kLargestInput);

/// The format that is told, else the one that the name ends in. Raises Refused where there is none.
[[nodiscard]] FileFormat FormatOf(const std::string& fileName, const std::string& told);

}  // namespace tessara
