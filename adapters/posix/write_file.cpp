#include "adapters/posix/write_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>

#include "adapters/posix/system_call.h"
#include "base/foreign_error.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

constexpr mode_t kReadableByAll = 0666;

/// A device or a pipe stays; half a file goes.
void RemoveBroken(const std::string& path) {
  std::error_code none;
  if (std::filesystem::is_regular_file(path, none)) std::filesystem::remove(path, none);
}

}  // namespace

void WriteFile(const std::string& path, const std::string& bytes) {
  // Without waiting for whoever may read a pipe.
  constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  Descriptor file(Uninterrupted([&] { return open(path.c_str(), kFlags, kReadableByAll); }));
  if (file.Get() == kFailed) throw RunTimeError(PathError(errno));
  try {
    WriteAll(file.Get(), bytes);
    Checked(file.Close());
  } catch (const std::system_error& error) {
    RemoveBroken(path);
    throw RunTimeError(TransferError(error.code().value()));
  }
}

}  // namespace tessara
