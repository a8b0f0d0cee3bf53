#include "adapters/posix/copies/copies_folder.h"

#include <algorithm>
#include <tuple>

#include "adapters/posix/new_file.h"
#include "base/folder_entries.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMostBytes = 50 * std::uintmax_t{1048576};
constexpr int kMostOfDeck = 20;

/// A copy that lies in the folder.
struct Copy {
  fs::path path;
  NamedCopy named;
  std::uintmax_t size;
  fs::file_time_type changed;
};

/// By the order of making. The clock counts only among copies whose names have no numbers.
bool Older(const Copy& a, const Copy& b) {
  return std::tie(a.named.number, a.changed, a.path) < std::tie(b.named.number, b.changed, b.path);
}

/// The oldest first. Files that are no copies are left out.
std::vector<Copy> CopiesIn(const CopiesFolder& folder) {
  std::vector<Copy> copies;
  for (const std::string& name : folder.Names()) {
    const auto named = ReadCopyName(name);
    const fs::path path = folder.Path() / name;
    if (!named || !fs::is_regular_file(fs::symlink_status(path))) continue;
    copies.push_back({path, *named, fs::file_size(path), fs::last_write_time(path)});
  }
  std::sort(copies.begin(), copies.end(), Older);
  return copies;
}

void MakeRoom(const std::vector<Copy>& copies, const std::string& fileName, std::uintmax_t size) {
  int ofDeck = 1;
  std::uintmax_t bytes = size;
  for (const Copy& copy : copies) {
    ofDeck += copy.named.fileName == fileName ? 1 : 0;
    bytes += copy.size;
  }
  for (const Copy& copy : copies) {
    const bool same = copy.named.fileName == fileName;
    const bool tooMany = same && ofDeck > kMostOfDeck;
    if (!tooMany && bytes <= kMostBytes) continue;
    fs::remove(copy.path);
    ofDeck -= same ? 1 : 0;
    bytes -= copy.size;
  }
}

std::uint64_t NumberBehind(const std::vector<Copy>& copies) {
  const auto counts = [](const Copy& copy) { return copy.named.number < kHighestCopyNumber; };
  const auto last = std::find_if(copies.rbegin(), copies.rend(), counts);
  return last == copies.rend() ? 1 : last->named.number + 1;
}

}  // namespace

void CopiesFolder::Prepare() const {
  MakeFolders(path_);
  NewFile::RemoveUnfinished(path_);
}

std::vector<std::string> CopiesFolder::Names() const {
  std::vector<std::string> names;
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(path_, unread)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

std::string CopiesFolder::NameOfNext(const std::string& fileName, std::uintmax_t size,
                                     Moment moment) const {
  const std::vector<Copy> copies = CopiesIn(*this);
  const std::uint64_t number = NumberBehind(copies);
  std::string name = CopyName(fileName, moment, number);
  // As it will be read: a long name has been shortened.
  MakeRoom(copies, ReadCopyName(name)->fileName, size);
  return name;
}

std::vector<fs::path> CopiesFolder::NamesOf(const struct stat& status) const {
  std::vector<fs::path> found;
  for (const Copy& copy : CopiesIn(*this)) {
    struct stat other {};
    const bool there = lstat(copy.path.c_str(), &other) == 0;
    const bool same = other.st_dev == status.st_dev && other.st_ino == status.st_ino;
    if (there && same) found.push_back(copy.path);
  }
  return found;
}

}  // namespace tessara
