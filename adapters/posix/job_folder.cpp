#include "adapters/posix/job_folder.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace tessara {

namespace {

constexpr std::string_view kPrefix = "tessara-print-";

}  // namespace

std::string JobFolderPattern() {
  return std::string(kPrefix) + std::to_string(getpid()) + "-XXXXXX";
}

bool IsLeftBehind(const std::string& name) {
  if (!name.starts_with(kPrefix)) return false;
  const long process = std::strtol(name.c_str() + kPrefix.size(), nullptr, 10);
  return process > 0 && kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

}  // namespace tessara
