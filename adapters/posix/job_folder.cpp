#include "adapters/posix/job_folder.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tessara {

namespace {

constexpr std::string_view kPrefix = "tessara-print-";
/// A hyphen and six characters of mkdtemp's.
constexpr std::string_view kEnding = "-XXXXXX";

bool IsOwnFolder(const std::filesystem::path& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

/// The process of a job folder's name; 0 for any other name.
pid_t ProcessOf(std::string_view name) {
  if (!name.starts_with(kPrefix)) return 0;
  name.remove_prefix(kPrefix.size());
  pid_t process = 0;
  const char* const end = std::from_chars(name.data(), name.data() + name.size(), process).ptr;
  name.remove_prefix(static_cast<std::size_t>(end - name.data()));
  return name.size() == kEnding.size() && name.front() == kEnding.front() ? process : 0;
}

}  // namespace

std::string JobFolderPattern() {
  return std::string(kPrefix) + std::to_string(getpid()) + std::string(kEnding);
}

bool IsLeftBehind(const std::filesystem::path& folder) {
  const pid_t process = ProcessOf(folder.filename().string());
  return process > 0 && IsOwnFolder(folder) && kill(process, 0) != 0 && errno == ESRCH;
}

}  // namespace tessara
