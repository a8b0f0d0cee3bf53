#pragma once

#include <filesystem>

#include "base/text.h"

namespace tessara {

/// Tells the user a title and a text: by a desktop notification, and in a line on standard error.
/// A small program in the folder does the first, so that neither a start nor a service that hangs
/// costs anything here. Without it, and without a service, nothing happens.
void NotifyUser(const std::filesystem::path& programFolder, const Text& title, const Text& text);

}  // namespace tessara
