#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "machine/safety_copies.h"

namespace tessara {

/// Safety copies in a folder of the user's: regular files of at most 10 MB, written whole and
/// brought to the disk before Keep returns. At most 20 for files of one name and 50 MB in all: the
/// oldest make room. docs/saving.md has the rest.
class PosixSafetyCopies : public SafetyCopies {
 public:
  /// The folder is made with the first copy; an empty path stands for no folder and no copies.
  explicit PosixSafetyCopies(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void Keep(const Text& path) noexcept override;

 private:
  void KeepFile(const std::filesystem::path& path) const;
  void MakeRoom(const std::string& deck, std::uintmax_t size) const;
  [[nodiscard]] std::string FreeName(const std::string& fileName) const;

  std::filesystem::path folder_;
};

}  // namespace tessara
