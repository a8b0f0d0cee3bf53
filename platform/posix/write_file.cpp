#include "platform/posix/write_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "platform/posix/system_error.h"
#include "platform/run_time_error.h"

namespace tessara {

namespace {

constexpr mode_t kReadableByAll = 0666;

/// 0, or the system's error.
int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

/// A device or a pipe stays; half a file goes.
void RemoveBroken(const std::string& path) {
  std::error_code none;
  if (std::filesystem::is_regular_file(path, none)) std::filesystem::remove(path, none);
}

}  // namespace

void WriteFile(const std::string& path, const std::string& bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kReadableByAll);
  if (file < 0) throw RunTimeError(PathError(errno));
  int error = WriteAll(file, bytes);
  if (close(file) != 0 && error == 0) error = errno;
  if (error == 0) return;
  RemoveBroken(path);
  throw RunTimeError(TransferError(error));
}

}  // namespace tessara
