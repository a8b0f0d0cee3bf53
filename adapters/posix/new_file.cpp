#include "adapters/posix/new_file.h"

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <utility>

#include "base/folder_entries.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr const char* kHiddenName = ".unfinished-";

}  // namespace

NewFile::NewFile(fs::path folder, Kind kind, const std::string& label)
    : folder_(std::move(folder)), file_(OpenFile(kind, label)) {
  constexpr mode_t kOwnerMayReadAndWrite = 0600;
  // Whatever the user's mask.
  Checked(fchmod(file_.Get(), kOwnerMayReadAndWrite));
}

NewFile::~NewFile() {
  if (!hidden_.empty()) unlink(hidden_.c_str());
}

int NewFile::OpenFile(Kind kind, const std::string& label) {
  const auto opened = [](const fs::path& path, int flags) {
    return Uninterrupted([&] { return open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, 0); });
  };
  if (kind == Kind::kNameless) {
    const int nameless = opened(folder_, O_TMPFILE);
    if (nameless != kFailed) return nameless;
  }
  const fs::path hidden = folder_ / (kHiddenName + std::to_string(getpid()) + label);
  // A killed process of the same number may have left it.
  unlink(hidden.c_str());
  const int file = Checked(opened(hidden, O_CREAT | O_EXCL | O_NOFOLLOW));
  hidden_ = hidden;
  return file;
}

void NewFile::NameIt(const std::string& name) {
  Force();
  TakeName(name);
  SyncFolder(folder_);
}

void NewFile::Force() const {
  Checked(Uninterrupted([this] { return fsync(Get()); }));
}

void NewFile::TakePlaceOf(const std::string& name) {
  Checked(rename(hidden_.c_str(), (folder_ / name).c_str()));
  hidden_.clear();
}

bool NewFile::SwapsWith(const std::string& name, Descriptor& opened) {
  const fs::path other = folder_ / name;
  const bool swaps =
      renameat2(AT_FDCWD, hidden_.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
  if (swaps) file_.Swap(opened);
  return swaps;
}

void NewFile::TakeName(const std::string& name) {
  if (!hidden_.empty()) return TakePlaceOf(name);
  const std::string open = "/proc/self/fd/" + std::to_string(Get());
  Checked(linkat(AT_FDCWD, open.c_str(), AT_FDCWD, (folder_ / name).c_str(), AT_SYMLINK_FOLLOW));
}

void NewFile::RemoveUnfinished(const fs::path& folder) {
  const auto recent = fs::file_time_type::clock::now() - std::chrono::hours(1);
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(folder, unread)) {
    if (!entry.path().filename().string().starts_with(kHiddenName)) continue;
    std::error_code vanished;
    if (entry.last_write_time(vanished) < recent && !vanished) fs::remove(entry, vanished);
  }
}

bool NewFile::IsSpare(const std::string& name) {
  return name.starts_with(kHiddenName) && name.ends_with(kSpareLabel);
}

void SyncFolder(const fs::path& folder) {
  const Descriptor opened(Checked(
      Uninterrupted([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })));
  Checked(Uninterrupted([&] { return fsync(opened.Get()); }));
}

void MakeFolders(const fs::path& folder) {
  constexpr mode_t kOwnerOnly = 0700;
  if (folder.empty() || fs::is_directory(folder)) return;
  MakeFolders(folder.parent_path());
  Checked(mkdir(folder.c_str(), kOwnerOnly));
  SyncFolder(folder.parent_path());
}

}  // namespace tessara
