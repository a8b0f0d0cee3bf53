#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "machine/file_system.h"

namespace tessara {

/// Bytes as a file that can only be read.
class SourceFile : public File {
 public:
  explicit SourceFile(std::string_view bytes) : bytes_(bytes) {}

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    const std::size_t start = std::min<std::uint64_t>(offset, bytes_.size());
    return bytes_.copy(buffer.data(), buffer.size(), start);
  }
  void WriteAt(std::uint64_t, std::span<const char>) override {}

 private:
  std::string_view bytes_;
};

/// A file system with that one file under every path.
class OneFile : public FileSystem {
 public:
  explicit OneFile(std::string_view bytes) : bytes_(bytes) {}

  std::unique_ptr<File> Open(const Text&, OpenMode) override {
    return std::make_unique<SourceFile>(bytes_);
  }
  void Delete(const Text&) override {}
  void TrySaving(const Text&) override {}
  std::optional<Text> EntryName(const Text& path) override { return path; }

 private:
  std::string_view bytes_;
};

}  // namespace tessara
