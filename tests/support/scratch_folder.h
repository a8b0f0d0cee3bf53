#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/text.h"
#include "base/utf8.h"

namespace tessara::test {

/// Where files are in memory: nothing waits for a disk.
inline constexpr const char* kInMemory = "/dev/shm";

/// A folder of the test's own on the disk, gone with it.
class ScratchFolder {
 public:
  explicit ScratchFolder(
      const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string name = (parent / "tessara-test-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { std::filesystem::remove_all(path_); }

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
    return path_ / name;
  }
  /// The path of an entry as the program has it.
  [[nodiscard]] Text TextPath(const Text& name) const {
    return FromUtf8(path_.string()) + u"/" + name;
  }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  [[nodiscard]] std::string Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tessara::test
