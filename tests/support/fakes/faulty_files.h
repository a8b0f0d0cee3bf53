#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "base/run_time_error.h"
#include "machine/file_system.h"

namespace tessara::test {

/// Hands every operation on to another file system, unless it is to fail.
class FaultyFiles : public FileSystem {
 public:
  explicit FaultyFiles(FileSystem& files) : files_(files) {}

  /// Asked before every operation, with its number counted from 1: an error makes it fail. A
  /// look-up of an entry has no errors: it finds none.
  std::function<std::optional<ErrorNumber>(int operation)> fault;
  int operations = 0;
  int opens = 0;  ///< of these, the openings

  std::unique_ptr<File> Open(const Text& path, OpenMode mode) override {
    ++opens;
    MayFail();
    return std::make_unique<FaultyFile>(*this, files_.Open(path, mode));
  }
  void Delete(const Text& path) override {
    MayFail();
    files_.Delete(path);
  }
  /// Not counted: a trial that fails is an answer, not an error.
  void TrySaving(const Text& path) override { files_.TrySaving(path); }
  std::optional<Text> EntryName(const Text& path) override {
    return Fault() ? std::nullopt : files_.EntryName(path);
  }

 private:
  class FaultyFile : public File {
   public:
    FaultyFile(FaultyFiles& owner, std::unique_ptr<File> file)
        : owner_(owner), file_(std::move(file)) {}
    std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
      owner_.MayFail();
      return file_->ReadAt(offset, buffer);
    }
    void WriteAt(std::uint64_t offset, std::span<const char> bytes) override {
      owner_.MayFail();
      file_->WriteAt(offset, bytes);
    }
    void Close() override {
      owner_.MayFail();
      file_->Close();
    }

   private:
    FaultyFiles& owner_;
    std::unique_ptr<File> file_;
  };

  std::optional<ErrorNumber> Fault() {
    ++operations;
    return fault ? fault(operations) : std::nullopt;
  }
  void MayFail() {
    if (const auto error = Fault()) throw RunTimeError(*error);
  }

  FileSystem& files_;
};

}  // namespace tessara::test
