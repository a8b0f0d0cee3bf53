#pragma once

#include <string>

namespace tessara {

/// Writes the file anew: one that is there stays as it is until the new one is whole, but where
/// nothing may be made in its folder. Raises 53 and 76 (no such folder), 57 (device), 61 (disk
/// full), 70 (permission), 71, 75; a new file that could not be written whole is gone. Waits for no
/// reader of a pipe.
void WriteFile(const std::string& path, const std::string& bytes);

}  // namespace tessara
