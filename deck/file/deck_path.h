#pragma once

#include "machine/file_system.h"

namespace tessara {

// A path taken apart. Wherever that is done, "/" and "\" both separate.

/// The name of a deck that has no file yet.
inline constexpr TextView kNewDeckName = u"New Deck";
/// What the names of deck files end in.
inline constexpr TextView kDeckEnding = u".tsr";

/// What stands behind the last separator; the whole path where there is none.
[[nodiscard]] Text FileNameOf(const Text& path);
/// What stands before the last separator; the root keeps it. Empty where there is none.
[[nodiscard]] Text FolderOf(const Text& path);
/// The file name without the ending of deck files.
[[nodiscard]] Text WithoutDeckEnding(const Text& fileName);

/// What stands in the path behind the last separator and before the first "." behind that.
/// Empty where either is missing.
[[nodiscard]] Text DeckNameOf(const Text& path);

/// The whole path with every folder's and the file's name as it stands on the disk, separators
/// as they were given. Empty where one of them is missing. The root is "/", or that of a drive.
[[nodiscard]] Text LongPathOf(const Text& path, FileSystem& files);

}  // namespace tessara
