#pragma once

#include <filesystem>
#include <string>

namespace tessara {

/// Makes the folder of a new profile. It names the build of the server, as the server itself
/// would at its first start, which spares it a second one.
void PrepareProfile(const std::filesystem::path& profile, const std::string& officeProgramFolder);

}  // namespace tessara
