#pragma once

#include <filesystem>
#include <system_error>
#include <vector>

namespace tessara {

using FolderEntries = std::vector<std::filesystem::directory_entry>;

/// What lies in the folder, in no order. A step that fails ends the list, which may be empty by
/// then, and is told in `error`: nothing is thrown.
[[nodiscard]] FolderEntries EntriesOf(const std::filesystem::path& folder, std::error_code& error);

/// The same with all that lies in the folders below it.
[[nodiscard]] FolderEntries EntriesBelow(const std::filesystem::path& folder,
                                         std::error_code& error);

}  // namespace tessara
