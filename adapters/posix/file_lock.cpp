#include "adapters/posix/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "adapters/posix/system_call.h"

namespace tessara {

namespace fs = std::filesystem;

bool LockFile(int file) {
  return Uninterrupted([&] { return flock(file, LOCK_EX | LOCK_NB); }) == 0;
}

bool IsFileOfName(int file, const fs::path& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(file, &opened) == 0 && lstat(path.c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

int OpenLeftFile(const fs::path& path) {
  constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;
  Descriptor file(Uninterrupted([&] { return open(path.c_str(), kFlags); }));
  // Its process may have put another in its place just before it was locked.
  const bool left = file.Get() != kFailed && LockFile(file.Get()) && IsFileOfName(file.Get(), path);
  return left ? file.Release() : kFailed;
}

}  // namespace tessara
