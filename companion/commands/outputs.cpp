#include "companion/commands/outputs.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "adapters/posix/output_file.h"
#include "companion/cards/complaints.h"
#include "companion/commands/input.h"

namespace tessara {

namespace {

/// Runs the step; an error of the system becomes a refusal that names the output.
template <class Step>
void Try(const std::string& name, const Step& step) {
  try {
    step();
  } catch (const std::system_error& error) {
    throw Refused({&name}, error.code().message());
  }
}

class NamedFile : public Output {
 public:
  NamedFile(std::string path, int number) : path_(std::move(path)) {
    Try(path_, [&] { file_ = std::make_unique<OutputFile>(path_, number); });
  }
  void Write(std::string_view bytes) override {
    Try(path_, [&] { file_->Write(bytes); });
  }
  void Complete() override {
    Try(path_, [&] { file_->Complete(); });
  }
  void Appear() override {
    Try(path_, [&] { file_->Appear(); });
  }

 private:
  std::string path_;
  std::unique_ptr<OutputFile> file_;
};

void RequireDone(bool done) {
  if (!done) throw std::system_error(errno, std::generic_category());
}

/// Gathers all before the first byte goes out.
class StandardOutput : public Output {
 public:
  StandardOutput() {
    Try(name_, [&] { RequireDone(gathered_ != nullptr); });
  }
  void Write(std::string_view bytes) override {
    Try(name_, [&] { WriteTo(gathered_.get(), bytes); });
  }
  void Complete() override {
    Try(name_, [&] { RequireDone(std::fflush(gathered_.get()) == 0); });
  }
  void Appear() override {
    Try(name_, [&] { Copy(); });
  }

 private:
  static void WriteTo(std::FILE* file, std::string_view bytes) {
    RequireDone(std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size());
  }

  void Copy() const {
    constexpr std::size_t kBlock = 65536;
    std::array<char, kBlock> block;
    std::rewind(gathered_.get());
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), gathered_.get()))
      WriteTo(stdout, {block.data(), size});
    RequireDone(std::fflush(stdout) == 0);
  }

  std::string name_ = "standard output";
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> gathered_{std::tmpfile(), std::fclose};
};

}  // namespace

void RequireFree(const std::string& path, bool replaces) {
  if (path != kStandardStream && !replaces && IsThere(path))
    throw Refused({&path}, "it exists; --force replaces it");
}

ByteSink& Outputs::Add(const std::string& path) {
  if (path == kStandardStream) {
    outputs_.push_back(std::make_unique<StandardOutput>());
  } else {
    outputs_.push_back(std::make_unique<NamedFile>(path, static_cast<int>(outputs_.size())));
  }
  return *outputs_.back();
}

void Outputs::Appear() {
  for (const auto& output : outputs_) output->Complete();
  for (const auto& output : outputs_) output->Appear();
}

}  // namespace tessara
