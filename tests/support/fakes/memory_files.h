#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "base/run_time_error.h"
#include "machine/file_system.h"

namespace tessara::test {

/// A file system in memory. Paths are whole keys; a folder is a path that was declared one.
class MemoryFiles : public FileSystem {
 public:
  enum class Operation { kOpen, kDelete, kRead, kWrite, kTrySaving, kEntryName };

  MemoryFiles() { folders.insert(u"/"); }

  std::map<Text, std::shared_ptr<std::string>> files;
  std::set<Text> folders;
  std::set<Text> withoutPermission;  ///< files that can't be opened, folders that take no new file
  /// Asked before every operation: an error number makes it fail.
  std::function<std::optional<ErrorNumber>(Operation, const Text& path)> fault;

  /// Puts a file there, with its folders.
  void Put(const Text& path, std::string bytes);
  /// The file's bytes; empty where there is none.
  [[nodiscard]] std::string Bytes(const Text& path) const;
  [[nodiscard]] bool Has(const Text& path) const { return files.contains(path); }

  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override;
  void Delete(const Text& path) override;
  void TrySaving(const Text& path) override;
  std::optional<Text> EntryName(const Text& path) override;

  /// Fails where `fault` says so.
  void MayFail(Operation operation, const Text& path) const;

 private:
  void MakeFoldersOf(const Text& path);
  void RequirePlace(const Text& path) const;
};

}  // namespace tessara::test
