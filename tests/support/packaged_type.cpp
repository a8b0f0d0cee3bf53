#include "tests/support/packaged_type.h"

#include <fstream>
#include <iterator>

#include "base/utf8.h"

namespace tessara::test {

std::string PackagedFile(const std::string& name) {
  std::ifstream file(std::filesystem::path(TESSARA_PACKAGING) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

DocumentType PackagedType(const std::filesystem::path& program) {
  const auto packaged = [](const char* name) {
    return FromUtf8(std::string(TESSARA_PACKAGING) + "/" + name);
  };
  return {packaged("tessara.xml"), packaged("tessara.desktop"),
          FromUtf8((program / "icons").string()), FromUtf8((program / "tessara").string())};
}

std::string WithLine(std::string content, const std::string& line) {
  const std::string key = "\n" + line.substr(0, line.find('=') + 1);
  const std::size_t begin = content.find(key) + 1;
  return content.replace(begin, content.find('\n', begin) - begin, line);
}

}  // namespace tessara::test
