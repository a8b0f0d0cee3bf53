#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/utf8.h"
#include "machine/document_types.h"

namespace tessara::test {

/// What a file of the package holds.
inline std::string PackagedFile(const std::string& name) {
  std::ifstream file(std::filesystem::path(TESSARA_PACKAGING) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The deck type as the package describes it, of a program in the folder.
inline DocumentType PackagedType(const std::filesystem::path& program) {
  const auto packaged = [](const char* name) {
    return FromUtf8(std::string(TESSARA_PACKAGING) + "/" + name);
  };
  return {packaged("tessara.xml"), packaged("tessara.desktop"),
          FromUtf8((program / "icons").string()), FromUtf8((program / "tessara").string())};
}

/// The content with a line in place of the one of the same key.
inline std::string WithLine(std::string content, const std::string& line) {
  const std::string key = "\n" + line.substr(0, line.find('=') + 1);
  const std::size_t begin = content.find(key) + 1;
  return content.replace(begin, content.find('\n', begin) - begin, line);
}

}  // namespace tessara::test
