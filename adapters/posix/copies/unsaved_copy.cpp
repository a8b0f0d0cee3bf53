#include "adapters/posix/copies/unsaved_copy.h"

namespace tessara {

namespace fs = std::filesystem;

void UnsavedCopy::Replace(const std::string& fileName, std::string_view deck) {
  if (file_ && fs::is_directory(folder_.Path())) return file_->Replace(deck);
  // It has gone with its folder, if there was one.
  file_.reset();
  folder_.Prepare();
  file_.emplace(folder_.Path(), FreeName(fileName), deck);
}

std::string UnsavedCopy::FreeName(const std::string& fileName) {
  std::string name;
  do {
    name = UnsavedName(fileName, getpid(), ++number_);
  } while (fs::exists(fs::symlink_status(folder_.Path() / name)));
  return name;
}

void UnsavedCopy::Drop() noexcept {
  if (file_) unlink(file_->Path().c_str());
  file_.reset();
}

void UnsavedCopy::Leave() {
  if (file_) left_.emplace_back(file_->Release());
  file_.reset();
}

void UnsavedCopy::Rename(const std::string& name) {
  if (!file_) throw std::system_error(ENOENT, std::generic_category());
  Checked(rename(file_->Path().c_str(), (folder_.Path() / name).c_str()));
  file_.reset();
}

}  // namespace tessara
