#pragma once

#include "base/text.h"
#include "machine/file_system.h"

namespace tessara {

/// Why no file can be saved as `path`, in words for the user; empty where one can.
[[nodiscard]] Text SaveRefusal(const Text& path, FileSystem& files);

}  // namespace tessara
