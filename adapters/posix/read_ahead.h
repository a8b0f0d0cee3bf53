#pragma once

#include <memory>
#include <vector>

#include "machine/file_system.h"

namespace tessara {

/// A file that is read from its front to its end in small pieces, in few calls to the system: it
/// reads a block at once and hands out its bytes. Of a file that somebody else writes meanwhile it
/// may give what stood there when the block was read.
class ReadAhead : public File {
 public:
  explicit ReadAhead(std::unique_ptr<File> file) : file_(std::move(file)) {}

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override;
  void WriteAt(std::uint64_t offset, std::span<const char> bytes) override;
  void Close() override { file_->Close(); }

 private:
  std::size_t ReadBlock(std::uint64_t offset, std::span<char> buffer);
  [[nodiscard]] bool InBlock(std::uint64_t offset) const;
  void Fill(std::uint64_t offset);

  std::unique_ptr<File> file_;
  std::vector<char> block_;
  std::uint64_t blockStart_ = 0;  ///< offset of the block in the file
  std::size_t filled_ = 0;        ///< bytes of the block that are the file's
};

}  // namespace tessara
