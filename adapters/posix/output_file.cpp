#include "adapters/posix/output_file.h"

#include <sys/stat.h>
#include <system_error>

namespace tessara {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBlock = 65536;
constexpr mode_t kPermissionBits = 0777;

mode_t PermissionsOfNew() {
  constexpr mode_t kEverybody = 0666;
  const mode_t mask = umask(0);
  umask(mask);
  return kEverybody & ~mask;
}

fs::path FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// A link stays and what it leads to is made anew.
fs::path TargetOf(const fs::path& path) {
  return fs::is_symlink(path) ? fs::weakly_canonical(path) : path;
}

}  // namespace

OutputFile::OutputFile(const fs::path& path, int number) : path_(TargetOf(path)) {
  struct stat status {};
  exists_ = stat(path_.c_str(), &status) == 0;
  if (exists_ && !S_ISREG(status.st_mode)) throw std::system_error(EINVAL, std::generic_category());
  const auto kind = exists_ ? NewFile::Kind::kHidden : NewFile::Kind::kNameless;
  file_ = std::make_unique<NewFile>(FolderOf(path_), kind, "-" + std::to_string(number));
  const mode_t permissions = exists_ ? status.st_mode & kPermissionBits : PermissionsOfNew();
  Checked(fchmod(file_->Get(), permissions));
}

OutputFile::~OutputFile() = default;

void OutputFile::Write(std::string_view bytes) {
  waiting_ += bytes;
  if (waiting_.size() >= kBlock) Flush();
}

void OutputFile::Flush() {
  WriteAll(file_->Get(), waiting_);
  waiting_.clear();
}

void OutputFile::Complete() {
  Flush();
  file_->Force();
}

void OutputFile::Appear() {
  if (exists_) {
    file_->TakePlaceOf(path_.filename());
  } else {
    file_->NameIt(path_.filename());
  }
}

bool IsThere(const fs::path& path) {
  std::error_code unknown;
  return fs::exists(fs::symlink_status(path, unknown));
}

}  // namespace tessara
