#include "tests/support/fakes/memory_files.h"

#include <algorithm>

namespace tessara::test {

namespace {

Text FolderOf(const Text& path) {
  const auto at = path.find_last_of(u"/\\");
  return at == Text::npos ? Text() : path.substr(0, std::max<std::size_t>(at, 1));
}

Text NameOf(const Text& path) {
  const auto at = path.find_last_of(u"/\\");
  return at == Text::npos ? path : path.substr(at + 1);
}

class MemoryFile : public File {
 public:
  MemoryFile(MemoryFiles& owner, Text path, OpenMode mode, std::shared_ptr<std::string> bytes)
      : owner_(owner), path_(std::move(path)), mode_(mode), bytes_(std::move(bytes)) {}

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    owner_.MayFail(MemoryFiles::Operation::kRead, path_);
    if (offset >= bytes_->size()) return 0;
    return bytes_->copy(buffer.data(), buffer.size(), static_cast<std::size_t>(offset));
  }

  void WriteAt(std::uint64_t offset, std::span<const char> bytes) override {
    owner_.MayFail(MemoryFiles::Operation::kWrite, path_);
    if (mode_ == OpenMode::kRead) throw RunTimeError(ErrorNumber::kDeviceIo);
    const auto start = static_cast<std::size_t>(offset);
    if (bytes_->size() < start + bytes.size()) bytes_->resize(start + bytes.size());
    bytes_->replace(start, bytes.size(), bytes.data(), bytes.size());
  }

 private:
  MemoryFiles& owner_;
  Text path_;
  OpenMode mode_;
  std::shared_ptr<std::string> bytes_;
};

}  // namespace

void MemoryFiles::MakeFoldersOf(const Text& path) {
  for (Text folder = FolderOf(path); !folder.empty(); folder = FolderOf(folder)) {
    if (!folders.insert(folder).second) return;
  }
}

void MemoryFiles::Put(const Text& path, std::string bytes) {
  MakeFoldersOf(path);
  files[path] = std::make_shared<std::string>(std::move(bytes));
}

std::string MemoryFiles::Bytes(const Text& path) const {
  const auto found = files.find(path);
  return found == files.end() ? std::string() : *found->second;
}

void MemoryFiles::MayFail(Operation operation, const Text& path) const {
  if (!fault) return;
  if (const auto error = fault(operation, path)) throw RunTimeError(*error);
}

/// Raises what keeps a file from being there.
void MemoryFiles::RequirePlace(const Text& path) const {
  if (path.empty() || folders.contains(path)) throw RunTimeError(ErrorNumber::kPathFileAccess);
  if (!folders.contains(FolderOf(path))) throw RunTimeError(ErrorNumber::kPathNotFound);
  if (withoutPermission.contains(path)) throw RunTimeError(ErrorNumber::kPermissionDenied);
}

std::unique_ptr<File> MemoryFiles::Open(const Text& path, OpenMode mode) {
  MayFail(Operation::kOpen, path);
  RequirePlace(path);
  if (!Has(path)) {
    if (mode == OpenMode::kRead) throw RunTimeError(ErrorNumber::kFileNotFound);
    Put(path, "");
  }
  return std::make_unique<MemoryFile>(*this, path, mode, files.at(path));
}

void MemoryFiles::Delete(const Text& path) {
  MayFail(Operation::kDelete, path);
  if (path.empty() || folders.contains(path)) throw RunTimeError(ErrorNumber::kPathFileAccess);
  if (withoutPermission.contains(path)) throw RunTimeError(ErrorNumber::kPermissionDenied);
  if (files.erase(path) == 0) throw RunTimeError(ErrorNumber::kFileNotFound);
}

void MemoryFiles::TrySaving(const Text& path) {
  MayFail(Operation::kTrySaving, path);
  RequirePlace(path);
  const bool newThere = !Has(path) && withoutPermission.contains(FolderOf(path));
  if (newThere) throw RunTimeError(ErrorNumber::kPermissionDenied);
}

std::optional<Text> MemoryFiles::EntryName(const Text& path) {
  MayFail(Operation::kEntryName, path);
  if (!Has(path) && !folders.contains(path)) return std::nullopt;
  return NameOf(path);
}

}  // namespace tessara::test
