#include "adapters/posix/copies/posix_safety_copies.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>

#include "adapters/posix/file_lock.h"
#include "adapters/posix/new_file.h"
#include "base/utf8.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kLargestFile = 10 * std::uintmax_t{1048576};

Moment Now() {
  return std::chrono::system_clock::now();
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
    const auto count = Checked(Uninterrupted(
        [&] { return pread(from, buffer.data(), buffer.size(), static_cast<off_t>(copied)); }));
    if (count == 0) return;
    copied += static_cast<std::uintmax_t>(count);
    if (copied > kLargestFile) throw std::system_error(EFBIG, std::generic_category());
    WriteAll(to, {buffer.data(), static_cast<std::size_t>(count)});
  }
}

/// Another name for a file that is to lose its own takes no space. False where it can't be, or
/// where somebody else could still write to it.
bool KeptByLink(int file, const struct stat& status, const fs::path& copy) {
  if (status.st_nlink != 1 || status.st_uid != geteuid()) return false;
  Uninterrupted([&] { return fsync(file); });
  const std::string open = "/proc/self/fd/" + std::to_string(file);
  if (linkat(AT_FDCWD, open.c_str(), AT_FDCWD, copy.c_str(), AT_SYMLINK_FOLLOW) == kFailed) {
    return false;
  }
  SyncFolder(copy.parent_path());
  return true;
}

/// The copies that a writing to the file would change get bytes of their own. False where there are
/// none.
bool CopiesParted(int file, const struct stat& status, const CopiesFolder& folder) {
  if (status.st_nlink == 1) return false;
  const std::vector<fs::path> copies = folder.NamesOf(status);
  for (const fs::path& path : copies) {
    NewFile copy(folder.Path(), NewFile::Kind::kHidden);
    CopyBytes(file, copy.Get());
    copy.Force();
    copy.TakePlaceOf(path.filename().string());
    SyncFolder(folder.Path());
  }
  return !copies.empty();
}

/// A name as the system can take it: an end of text inside would cut it.
std::string SystemName(const Text& fileName) {
  std::string name = ToUtf8(fileName);
  std::replace(name.begin(), name.end(), '\0', '_');
  return name;
}

/// One whose process has ended.
void RemoveLeftSpare(const fs::path& path) {
  const Descriptor file(OpenLeftFile(path));
  if (file.Get() != kFailed) unlink(path.c_str());
}

/// A step that keeps something. Where it fails the program goes on without: nobody is told.
template <class Step>
bool Kept(const Step& step) noexcept {
  try {
    step();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

void PosixSafetyCopies::Keep(const Text& path, Loss loss) noexcept {
  Kept([&] {
    const std::string name = ToUtf8(path);
    const bool nameable = name.find('\0') == std::string::npos;
    if (nameable && !folder_.Path().empty()) KeepFile(name, loss);
  });
}

void PosixSafetyCopies::KeepFile(const fs::path& path, Loss loss) const {
  struct stat status {};
  // Opening alone can set a device going.
  if (stat(path.c_str(), &status) == kFailed || !IsWorthCopying(status)) return;
  const Descriptor original(OpenForReading(path));
  Checked(fstat(original.Get(), &status));
  if (!IsWorthCopying(status)) return;
  folder_.Prepare();
  if (loss == Loss::kWrittenOver && CopiesParted(original.Get(), status, folder_)) return;
  const std::string name = folder_.NameOfNext(path.filename().string(),
                                              static_cast<std::uintmax_t>(status.st_size), Now());
  const bool goes = loss == Loss::kDeleted;
  if (goes && KeptByLink(original.Get(), status, folder_.Path() / name)) return;
  NewFile copy(folder_.Path());
  CopyBytes(original.Get(), copy.Get());
  copy.NameIt(name);
}

void PosixSafetyCopies::KeepUnsaved(const Text& fileName, std::string_view deck) noexcept {
  if (!folder_.Path().empty()) Kept([&] { unsaved_.Replace(SystemName(fileName), deck); });
}

Text PosixSafetyCopies::KeepNotSaved(const Text& fileName, std::string_view deck) noexcept {
  if (folder_.Path().empty()) return {};
  Text path;
  const bool named = Kept([&] {
    folder_.Prepare();
    const std::string name =
        folder_.NameOfNext(NotSavedName(SystemName(fileName)), deck.size(), Now());
    // Where there is no space for another file, the one that is there already holds these cards.
    if (Kept([&] { KeepAs(name, deck); })) {
      unsaved_.Drop();
    } else {
      unsaved_.Rename(name);
    }
    path = FromUtf8((folder_.Path() / name).string());
  });
  return named ? path : Text();
}

void PosixSafetyCopies::KeepAs(const std::string& name, std::string_view deck) const {
  NewFile copy(folder_.Path());
  WriteAll(copy.Get(), deck);
  copy.NameIt(name);
}

std::vector<LeftDeck> PosixSafetyCopies::TakeLeftDecks() noexcept {
  std::vector<LeftDeck> decks;
  Kept([&] {
    for (const std::string& name : folder_.Names()) {
      if (NewFile::IsSpare(name)) RemoveLeftSpare(folder_.Path() / name);
      const auto fileName = ReadUnsavedName(name);
      if (fileName) Kept([&] { TakeLeftDeck(name, *fileName, decks); });
    }
  });
  return decks;
}

void PosixSafetyCopies::TakeLeftDeck(const std::string& name, const std::string& fileName,
                                     std::vector<LeftDeck>& decks) const {
  const fs::path path = folder_.Path() / name;
  const Descriptor file(OpenLeftFile(path));
  if (file.Get() == kFailed) return;
  struct stat status {};
  Checked(fstat(file.Get(), &status));
  const std::string newName =
      folder_.NameOfNext(NotSavedName(fileName), static_cast<std::uintmax_t>(status.st_size),
                         std::chrono::system_clock::from_time_t(status.st_mtime));
  const fs::path newPath = folder_.Path() / newName;
  Checked(rename(path.c_str(), newPath.c_str()));
  decks.push_back({FromUtf8(fs::path(fileName).stem().string()), FromUtf8(path.string()),
                   FromUtf8(newPath.string())});
}

}  // namespace tessara
