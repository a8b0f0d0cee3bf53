#pragma once

#include <string>
#include <string_view>

namespace tessara {

/// The URL of a file: every byte of the path that is no plain character is escaped.
[[nodiscard]] std::string FileUrl(std::string_view path);

}  // namespace tessara
