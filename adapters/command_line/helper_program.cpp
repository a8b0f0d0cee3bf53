#include "adapters/command_line/helper_program.h"

#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/system_call.h"

namespace tessara {

namespace fs = std::filesystem;

int RunAndWait(const fs::path& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> words = {program.string()};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  pid_t child = 0;
  const int error =
      posix_spawn(&child, program.c_str(), nullptr, nullptr, pointers.data(), environ);
  if (error != 0) throw std::system_error(error, std::generic_category());
  int status = 0;
  Checked(Uninterrupted([&] { return waitpid(child, &status, 0); }));
  constexpr int kEndedBySignal = 128;
  return WIFEXITED(status) ? WEXITSTATUS(status) : kEndedBySignal + WTERMSIG(status);
}

PrivateScratch::PrivateScratch() {
  std::string name = (fs::temp_directory_path() / "tessara-deck-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category());
  path_ = name;
}

PrivateScratch::~PrivateScratch() {
  std::error_code unknown;
  fs::remove_all(path_, unknown);
}

}  // namespace tessara
