#pragma once

#include "machine/file_system.h"

namespace tessara {

/// The whole path with every folder's and the file's name as it stands on the disk, separators
/// as they were given. Empty where one of them is missing. The root is "/", or that of a drive.
[[nodiscard]] Text LongPathOf(const Text& path, FileSystem& files);

}  // namespace tessara
