#include "adapters/posix/posix_file_system.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "adapters/posix/posix_file.h"
#include "adapters/posix/read_ahead.h"
#include "adapters/posix/system_call.h"
#include "base/foreign_error.h"
#include "base/run_time_error.h"
#include "base/utf8.h"

namespace tessara {

namespace {

constexpr mode_t kOwn = S_IRUSR | S_IWUSR;
constexpr mode_t kOfOthers = S_IRWXG | S_IRWXO;

[[noreturn]] void RaisePathError(int systemError) {
  throw RunTimeError(PathError(systemError));
}

/// The path as the system takes it. Raises error 75 for one that the system can't name.
std::string SystemPath(const Text& path) {
  std::string bytes = ToUtf8(path);
  const bool nameable = !bytes.empty() && bytes.find('\0') == std::string::npos;
  if (!nameable) throw RunTimeError(ErrorNumber::kPathFileAccess);
  return bytes;
}

bool IsFolder(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Folder of the path, with the separator at its end; empty for a name alone.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

void RequireRegularFile(const struct stat& status) {
  if (!S_ISREG(status.st_mode)) throw RunTimeError(ErrorNumber::kPathFileAccess);
}

/// Without waiting: opening a pipe would wait for a peer, a terminal for its line.
int FlagsOf(OpenMode mode) {
  constexpr int kAlways = O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  return kAlways | (mode == OpenMode::kRead ? O_RDONLY : O_RDWR | O_CREAT);
}

/// The system has one code for a missing file and a missing folder.
ErrorNumber OpenError(int systemError, const std::string& path) {
  const std::string folder = FolderOf(path);
  const bool folderMissing = systemError == ENOENT && !folder.empty() && !IsFolder(folder);
  return folderMissing ? ErrorNumber::kPathNotFound : PathError(systemError);
}

/// 0 where the file, which is there, can be written.
int ErrorOfOpening(const std::string& name) {
  const int flags = FlagsOf(OpenMode::kReadAndWrite) & ~O_CREAT;
  const Descriptor opened(Uninterrupted([&] { return open(name.c_str(), flags); }));
  return opened.Get() == kFailed ? errno : 0;
}

/// Makes a hidden file whose name ends in `ending` and removes it at once. 0 where that works.
int ErrorOfNewFile(const std::string& folder, const std::string& ending) {
  std::string name = folder + ".XXXXXX" + ending;
  const Descriptor made(mkostemps(name.data(), static_cast<int>(ending.size()), O_CLOEXEC));
  if (made.Get() == kFailed) return errno;
  unlink(name.c_str());
  return 0;
}

/// 0 where a file of almost the same name can be made: not every disk takes every letter.
int ErrorOfNewFileBeside(const std::string& path) {
  const std::string folder = FolderOf(path);
  const int error = ErrorOfNewFile(folder, path.substr(folder.size()));
  // A name that the disk just takes has become too long.
  return error == ENAMETOOLONG ? ErrorOfNewFile(folder, "") : error;
}

}  // namespace

std::unique_ptr<File> PosixFileSystem::Open(const Text& path, OpenMode mode) {
  const std::string name = SystemPath(path);
  const mode_t permissions = PermissionsOfNew(name);
  const int descriptor =
      Uninterrupted([&] { return open(name.c_str(), FlagsOf(mode), permissions); });
  if (descriptor == kFailed) throw RunTimeError(OpenError(errno, name));
  auto file = std::make_unique<PosixFile>(descriptor);
  struct stat status {};
  if (fstat(descriptor, &status) == kFailed) RaisePathError(errno);
  RequireRegularFile(status);
  if (mode == OpenMode::kRead) return std::make_unique<ReadAhead>(std::move(file));
  return file;
}

/// Before the user's mask.
mode_t PosixFileSystem::PermissionsOfNew(const std::string& name) const {
  constexpr mode_t kEverybody = 0666;
  return deleted_ && deleted_->name == name ? deleted_->permissions : kEverybody;
}

void PosixFileSystem::Delete(const Text& path) {
  const std::string name = SystemPath(path);
  // The link stays and the next opening makes what it leads to anew.
  const std::unique_ptr<char, decltype(&std::free)> target(realpath(name.c_str(), nullptr),
                                                           &std::free);
  if (target == nullptr) RaisePathError(errno);
  struct stat status {};
  if (stat(target.get(), &status) == kFailed) RaisePathError(errno);
  RequireRegularFile(status);
  // The system would let the owner of the folder delete a file that is kept from being written.
  if (access(target.get(), W_OK) == kFailed) RaisePathError(errno);
  if (unlink(target.get()) == kFailed) RaisePathError(errno);
  deleted_ = {name, (status.st_mode & kOfOthers) | kOwn};
}

void PosixFileSystem::TrySaving(const Text& path) {
  const std::string name = SystemPath(path);
  struct stat status {};
  const bool there = stat(name.c_str(), &status) == 0;
  if (!there && errno != ENOENT) RaisePathError(errno);
  if (there) RequireRegularFile(status);
  const int error = there ? ErrorOfOpening(name) : ErrorOfNewFileBeside(name);
  if (error != 0) throw RunTimeError(OpenError(error, name));
}

std::optional<Text> PosixFileSystem::EntryName(const Text& path) {
  const std::string name = ToUtf8(path);
  struct stat status {};
  const bool there = name.find('\0') == std::string::npos && lstat(name.c_str(), &status) == 0;
  if (!there) return std::nullopt;
  return FromUtf8(name.substr(FolderOf(name).size()));
}

}  // namespace tessara
