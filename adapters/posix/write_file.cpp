#include "adapters/posix/write_file.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/output_file.h"
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

bool IsForbidden(const std::error_code& error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system;
}

/// Leaves a file that is there as it is until the new one is whole. False where there is none, or
/// where nothing may be made beside it.
bool Replaced(const std::string& path, const std::string& bytes) {
  std::error_code unknown;
  const std::filesystem::path target = std::filesystem::canonical(path, unknown);
  const bool replaceable = !unknown && std::filesystem::is_regular_file(target, unknown);
  if (!replaceable || access(target.c_str(), W_OK) != 0) return false;
  try {
    OutputFile file(target, 0);
    file.Write(bytes);
    file.Complete();
    file.Appear();
    return true;
  } catch (const std::system_error& error) {
    if (IsForbidden(error.code())) return false;
    throw RunTimeError(TransferError(error.code().value()));
  }
}

void WriteInPlace(const std::string& path, const std::string& bytes) {
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

}  // namespace

void WriteFile(const std::string& path, const std::string& bytes) {
  if (!Replaced(path, bytes)) WriteInPlace(path, bytes);
}

}  // namespace tessara
