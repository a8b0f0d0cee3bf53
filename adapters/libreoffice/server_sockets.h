#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tessara {

/// The setting of a server, and of this process as its client, that names their sockets' folder.
inline constexpr const char* kSocketPath = "OSL_SOCKET_PATH";

// A server is known by its private folder: the names of its sockets follow from that one's.

/// The folder of its profile.
[[nodiscard]] std::filesystem::path ProfileOf(const std::filesystem::path& privateFolder);
/// The name of the pipe on which the program talks to it, unique as the folder's is.
[[nodiscard]] std::string PipeName(const std::filesystem::path& privateFolder);

/// Where its sockets are to lie: in the user's runtime folder (XDG base directories), or in the
/// private folder where there is no such folder or others may look into it. A server that can
/// write to /tmp or /var/tmp takes that all the same.
[[nodiscard]] std::filesystem::path SocketFolder(const std::filesystem::path& privateFolder);

/// Each place where one of its sockets may lie: a killed server leaves them behind.
[[nodiscard]] std::vector<std::filesystem::path> SocketsOf(
    const std::filesystem::path& privateFolder);

/// True where the pipe is there and this user's own. One that somebody else has put in its place
/// does not count.
[[nodiscard]] bool OwnsPipe(const std::filesystem::path& privateFolder);

}  // namespace tessara
