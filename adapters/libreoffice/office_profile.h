#pragma once

#include <filesystem>
#include <string>

namespace tessara {

/// Makes the folder of a new profile. It names the build of the server, as the server itself
/// would at its first start, which spares it a second one.
void PrepareProfile(const std::filesystem::path& profile, const std::string& officeProgramFolder);

/// Writes the font configuration that such a server needs into its profile, and gives its path;
/// empty where it needs none. Before version 7.5 its export leaves the characters of colour fonts
/// blank: without these fonts it finds the characters in others, in black.
[[nodiscard]] std::filesystem::path PrepareFonts(const std::filesystem::path& profile,
                                                 const std::string& officeProgramFolder);

}  // namespace tessara
