#pragma once

#include <string>

namespace tessara {

/// The URL of a file: every byte of the path that is no plain character is escaped. That is more
/// than the rules want: the server's command line has a use for some of the others.
[[nodiscard]] std::string FileUrl(const std::string& path);

}  // namespace tessara
