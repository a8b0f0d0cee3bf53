#pragma once

#include "platform/file_system.h"
#include "platform/text.h"

namespace tessara {

/// Why no file can be saved as `path`, in words for the user; empty where one can.
[[nodiscard]] Text SaveRefusal(const Text& path, FileSystem& files);

}  // namespace tessara
