#include "adapters/posix/unsaved_copy.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "adapters/posix/new_file.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

/// Where the file system has no locks the deck is kept all the same.
bool Lock(int file) {
  return Uninterrupted([&] { return flock(file, LOCK_EX | LOCK_NB); }) == 0;
}

bool IsFileOfName(int file, const fs::path& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(file, &opened) == 0 && lstat(path.c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

}  // namespace

void UnsavedCopy::Replace(const std::string& fileName, std::string_view deck) {
  if (!Exists()) folder_.Prepare();
  NewFile next(folder_.Path(), NewFile::Kind::kHidden);
  Lock(next.Get());
  WriteAll(next.Get(), deck);
  const std::string name = Exists() ? name_ : FreeName(fileName);
  next.TakePlaceOf(name);
  if (Exists()) locks_.pop_back();
  name_ = name;
  locks_.emplace_back(next.Release());
}

std::string UnsavedCopy::FreeName(const std::string& fileName) {
  std::string name;
  do {
    name = UnsavedName(fileName, getpid(), ++number_);
  } while (fs::exists(fs::symlink_status(folder_.Path() / name)));
  return name;
}

void UnsavedCopy::Drop() noexcept {
  if (!Exists()) return;
  unlink((folder_.Path() / name_).c_str());
  Forget();
}

void UnsavedCopy::Leave() {
  name_.clear();
}

void UnsavedCopy::Rename(const std::string& name) {
  if (!Exists()) throw std::system_error(ENOENT, std::generic_category());
  Checked(rename((folder_.Path() / name_).c_str(), (folder_.Path() / name).c_str()));
  Forget();
}

void UnsavedCopy::Forget() {
  name_.clear();
  locks_.pop_back();
}

int OpenLeftFile(const fs::path& path) {
  constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;
  Descriptor file(Uninterrupted([&] { return open(path.c_str(), kFlags); }));
  // Its process may have put the next one in its place just before it was locked.
  const bool left = file.Get() != kFailed && Lock(file.Get()) && IsFileOfName(file.Get(), path);
  return left ? file.Release() : kFailed;
}

}  // namespace tessara
