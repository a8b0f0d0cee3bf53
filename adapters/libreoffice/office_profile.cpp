#include "adapters/libreoffice/office_profile.h"

#include <fstream>
#include <string_view>
#include <system_error>

namespace tessara {

namespace {

/// The build of the server, empty where it does not tell.
std::string BuildId(const std::string& office) {
  constexpr std::string_view kKey = "buildid=";
  std::ifstream version(office + "/versionrc");
  for (std::string line; std::getline(version, line);) {
    if (line.starts_with(kKey)) return line.substr(kKey.size());
  }
  return {};
}

}  // namespace

void PrepareProfile(const std::filesystem::path& profile, const std::string& officeProgramFolder) {
  const std::filesystem::path extensions = profile / "user/extensions";
  std::error_code none;
  std::filesystem::create_directories(extensions, none);
  const std::string build = BuildId(officeProgramFolder);
  if (!build.empty()) std::ofstream(extensions / "buildid") << build;
}

}  // namespace tessara
