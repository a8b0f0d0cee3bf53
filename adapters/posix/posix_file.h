#pragma once

#include "adapters/posix/system_call.h"
#include "machine/file_system.h"

namespace tessara {

/// An open regular file. Each operation goes on until all is read or written.
class PosixFile : public File {
 public:
  /// Takes over `descriptor`, which is open.
  explicit PosixFile(int descriptor) : descriptor_(descriptor) {}

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override;
  void WriteAt(std::uint64_t offset, std::span<const char> bytes) override;
  void Close() override;

 private:
  Descriptor descriptor_;
};

}  // namespace tessara
