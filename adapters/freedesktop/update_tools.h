#pragma once

#include <filesystem>

namespace tessara {

/// Starts the desktop's own tools that make new types, entries and icons known, and makes the
/// program the default one for decks. Returns at once; a missing tool is silent.
void StartUpdateTools(const std::filesystem::path& userData);

}  // namespace tessara
