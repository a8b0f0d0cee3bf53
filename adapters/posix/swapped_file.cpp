#include "adapters/posix/swapped_file.h"

#include <sys/stat.h>
#include <utility>

#include "adapters/posix/file_lock.h"

namespace tessara {

namespace fs = std::filesystem;

namespace {

struct stat StatusOf(int file) {
  struct stat status {};
  Checked(fstat(file, &status));
  return status;
}

void Rewrite(int file, std::string_view bytes) {
  Checked(lseek(file, 0, SEEK_SET));
  WriteAll(file, bytes);
  const auto size = static_cast<off_t>(bytes.size());
  if (StatusOf(file).st_size > size) Checked(ftruncate(file, size));
}

}  // namespace

SwappedFile::SwappedFile(fs::path folder, const std::string& name, std::string_view bytes)
    : folder_(std::move(folder)), path_(folder_ / name) {
  WriteSpare(bytes);
  GiveNameToSpare();
}

void SwappedFile::Replace(std::string_view bytes) {
  WriteSpare(bytes);
  if (!SwapsWithSpare()) GiveNameToSpare();
}

void SwappedFile::WriteSpare(std::string_view bytes) {
  if (!SpareIsUsable()) {
    spare_.reset();
    spare_ = std::make_unique<NewFile>(folder_, NewFile::Kind::kHidden, NewFile::kSpareLabel);
    // A file system without locks keeps it all the same.
    LockFile(spare_->Get());
  }
  Rewrite(spare_->Get(), bytes);
}

/// Somebody may have removed it, or linked it while it had the file's name: what has another name
/// is not ours alone to write over.
bool SwappedFile::SpareIsUsable() const {
  return spare_ && IsFileOfName(spare_->Get(), spare_->HiddenPath()) &&
         StatusOf(spare_->Get()).st_nlink == 1;
}

/// False where the file system can't, and where the name has gone or is another file's.
bool SwappedFile::SwapsWithSpare() {
  return IsFileOfName(file_.Get(), path_) && spare_->SwapsWith(path_.filename().string(), file_);
}

void SwappedFile::GiveNameToSpare() {
  const std::unique_ptr<NewFile> next = std::move(spare_);
  next->TakePlaceOf(path_.filename().string());
  Descriptor opened(next->Release());
  file_.Swap(opened);
}

}  // namespace tessara
