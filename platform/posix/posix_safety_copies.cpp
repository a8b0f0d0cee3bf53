#include "platform/posix/posix_safety_copies.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <tuple>
#include <vector>

#include "platform/folder_entries.h"
#include "platform/posix/copy_name.h"
#include "platform/posix/new_file.h"
#include "platform/utf8.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMegabyte = 1048576;
constexpr std::uintmax_t kLargestFile = 10 * kMegabyte;
constexpr std::uintmax_t kMostBytes = 50 * kMegabyte;
constexpr int kMostOfDeck = 20;

/// A copy that lies in the folder.
struct Copy {
  fs::path path;
  std::string deck;
  std::uintmax_t size;
  fs::file_time_type made;
};

bool Older(const Copy& a, const Copy& b) {
  return std::tie(a.made, a.path) < std::tie(b.made, b.path);
}

/// The oldest first. Files that are no copies are left out.
std::vector<Copy> CopiesIn(const fs::path& folder) {
  std::vector<Copy> copies;
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(folder, unread)) {
    const auto deck = NameWithoutMoment(entry.path().filename().string());
    if (!deck || !fs::is_regular_file(entry.symlink_status())) continue;
    copies.push_back({entry.path(), *deck, entry.file_size(), entry.last_write_time()});
  }
  std::sort(copies.begin(), copies.end(), Older);
  return copies;
}

/// A regular file that is neither empty nor too large for a copy.
bool IsWorthCopying(const struct stat& status) {
  return S_ISREG(status.st_mode) && status.st_size > 0 &&
         static_cast<std::uintmax_t>(status.st_size) <= kLargestFile;
}

int OpenForReading(const fs::path& path) {
  // Should a pipe have taken the file's place by now, this does not wait for its peer.
  constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  return Checked(Uninterrupted([&] { return open(path.c_str(), kFlags); }));
}

/// Gives up, by an error, on a file that grows too large meanwhile.
void CopyBytes(int from, int to) {
  std::array<char, 65536> buffer{};
  std::uintmax_t copied = 0;
  while (true) {
    const auto count =
        Checked(Uninterrupted([&] { return read(from, buffer.data(), buffer.size()); }));
    if (count == 0) return;
    copied += static_cast<std::uintmax_t>(count);
    if (copied > kLargestFile) throw std::system_error(EFBIG, std::generic_category());
    WriteAll(to, {buffer.data(), static_cast<std::size_t>(count)});
  }
}

}  // namespace

void PosixSafetyCopies::Keep(const Text& path) noexcept {
  try {
    const std::string name = ToUtf8(path);
    const bool nameable = name.find('\0') == std::string::npos;
    if (nameable && !folder_.empty()) KeepFile(name);
  } catch (const std::exception&) {
    // The save goes on without a copy: nobody is told.
  }
}

void PosixSafetyCopies::KeepFile(const fs::path& path) const {
  struct stat status {};
  // Opening alone can set a device going.
  if (stat(path.c_str(), &status) == kFailed || !IsWorthCopying(status)) return;
  const Descriptor original(OpenForReading(path));
  Checked(fstat(original.Get(), &status));
  if (!IsWorthCopying(status)) return;
  MakeFolders(folder_);
  NewFile::RemoveUnfinished(folder_);
  const std::string name = FreeName(path.filename().string());
  MakeRoom(*NameWithoutMoment(name), static_cast<std::uintmax_t>(status.st_size));
  NewFile copy(folder_);
  CopyBytes(original.Get(), copy.Get());
  copy.NameIt(name);
}

void PosixSafetyCopies::MakeRoom(const std::string& deck, std::uintmax_t size) const {
  const std::vector<Copy> copies = CopiesIn(folder_);
  int ofDeck = 1;
  std::uintmax_t bytes = size;
  for (const Copy& copy : copies) {
    ofDeck += copy.deck == deck ? 1 : 0;
    bytes += copy.size;
  }
  for (const Copy& copy : copies) {
    const bool tooMany = copy.deck == deck && ofDeck > kMostOfDeck;
    if (!tooMany && bytes <= kMostBytes) continue;
    fs::remove(copy.path);
    ofDeck -= copy.deck == deck ? 1 : 0;
    bytes -= copy.size;
  }
}

std::string PosixSafetyCopies::FreeName(const std::string& fileName) const {
  Moment moment = std::chrono::system_clock::now();
  std::string name = CopyName(fileName, moment);
  while (fs::exists(fs::symlink_status(folder_ / name))) {
    moment += std::chrono::milliseconds(1);
    name = CopyName(fileName, moment);
  }
  return name;
}

}  // namespace tessara
