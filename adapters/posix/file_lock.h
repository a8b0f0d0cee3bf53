#pragma once

#include <filesystem>

namespace tessara {

/// Locks the open file until it is closed. False where another open one has the lock, or where the
/// file system has no locks.
bool LockFile(int file);

/// Whether the path is a name of the open file, and no link to it.
[[nodiscard]] bool IsFileOfName(int file, const std::filesystem::path& path);

/// The regular file by that name, locked, if nobody else has it locked; kFailed otherwise. Waits
/// for nothing.
[[nodiscard]] int OpenLeftFile(const std::filesystem::path& path);

}  // namespace tessara
