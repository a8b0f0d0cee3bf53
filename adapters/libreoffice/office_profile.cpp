#include "adapters/libreoffice/office_profile.h"

#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace tessara {

namespace {

/// What stands behind the key in a file of the server's; empty where it does not tell.
std::string ValueOf(std::string_view key, const std::string& path) {
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(key)) return line.substr(key.size());
  }
  return {};
}

/// A server that does not tell its version counts as a new one.
bool ExportsColourFonts(const std::string& office) {
  constexpr std::pair kFirst(7, 5);
  std::istringstream version(ValueOf("ProductKey=LibreOffice ", office + "/bootstraprc"));
  std::pair told = kFirst;
  char point = 0;
  version >> told.first >> point >> told.second;
  return version.fail() || told >= kFirst;
}

/// The system's, less the colour fonts.
constexpr std::string_view kFontsWithoutColour = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <include>fonts.conf</include>
  <selectfont>
    <rejectfont><pattern><patelt name="color"><bool>true</bool></patelt></pattern></rejectfont>
  </selectfont>
</fontconfig>
)";

}  // namespace

void PrepareProfile(const std::filesystem::path& profile, const std::string& officeProgramFolder) {
  const std::filesystem::path extensions = profile / "user/extensions";
  std::error_code none;
  std::filesystem::create_directories(extensions, none);
  const std::string build = ValueOf("buildid=", officeProgramFolder + "/versionrc");
  if (!build.empty()) std::ofstream(extensions / "buildid") << build;
}

std::filesystem::path PrepareFonts(const std::filesystem::path& profile,
                                   const std::string& officeProgramFolder) {
  if (ExportsColourFonts(officeProgramFolder)) return {};
  const std::filesystem::path path = profile / "fonts-without-colour.conf";
  return std::ofstream(path) << kFontsWithoutColour ? path : std::filesystem::path();
}

}  // namespace tessara
