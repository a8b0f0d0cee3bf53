#include "adapters/posix/posix_file.h"

#include <cerrno>
#include <unistd.h>

#include "base/foreign_error.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// How many bytes the call has read or written. Raises the error of a failed one.
template <class Call>
std::size_t Transferred(const Call& call) {
  const ssize_t count = Uninterrupted(call);
  if (count == kFailed) throw RunTimeError(TransferError(errno));
  return static_cast<std::size_t>(count);
}

}  // namespace

std::size_t PosixFile::ReadAt(std::uint64_t offset, std::span<char> buffer) {
  std::size_t done = 0;
  while (done < buffer.size()) {
    const std::span<char> rest = buffer.subspan(done);
    const std::size_t count = Transferred([&] {
      return pread(descriptor_.Get(), rest.data(), rest.size(), static_cast<off_t>(offset + done));
    });
    if (count == 0) break;
    done += count;
  }
  return done;
}

void PosixFile::WriteAt(std::uint64_t offset, std::span<const char> bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const std::span<const char> rest = bytes.subspan(done);
    const std::size_t count = Transferred([&] {
      return pwrite(descriptor_.Get(), rest.data(), rest.size(), static_cast<off_t>(offset + done));
    });
    if (count == 0) throw RunTimeError(ErrorNumber::kDiskFull);
    done += count;
  }
}

void PosixFile::Close() {
  if (descriptor_.Close() == kFailed && errno != EINTR) throw RunTimeError(TransferError(errno));
}

}  // namespace tessara
