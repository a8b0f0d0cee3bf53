#include "adapters/posix/process/prepare_process.h"

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <unistd.h>

namespace tessara {

namespace {

/// The write that caused the signal fails by itself.
void DoNothing(int /*signal*/) {}

constexpr const char* kSearchPath = "PATH";

std::string PathOfSystem() {
  std::string path(confstr(_CS_PATH, nullptr, 0), '\0');
  confstr(_CS_PATH, path.data(), path.size());
  path.pop_back();  // the closing 0
  return path;
}

std::string WholePathsOf(const std::string& path) {
  std::string whole;
  std::istringstream elements(path);
  for (std::string element; std::getline(elements, element, ':');) {
    if (element.starts_with('/')) whole += (whole.empty() ? "" : ":") + element;
  }
  return whole;
}

}  // namespace

void OccupyStandardFiles() {
  for (int file = STDIN_FILENO; file <= STDERR_FILENO; ++file) {
    if (fcntl(file, F_GETFD) != -1) continue;
    // The lowest free number. Of the wrong kind, so that reading and writing go on failing.
    open("/dev/null", file == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

void SurviveFileSizeLimit() {
  // Caught, not ignored: a program that is started inherits what is ignored.
  std::signal(SIGXFSZ, DoNothing);
}

void KeepWholePathsOnly() {
  const char* path = std::getenv(kSearchPath);
  const std::string whole = WholePathsOf(path == nullptr ? "" : path);
  setenv(kSearchPath, (whole.empty() ? PathOfSystem() : whole).c_str(), 1);
}

void ForgetRelativeFolders() {
  for (const char* variable :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR",
        "TMPDIR", "TMP", "TEMP", "TEMPDIR"}) {
    const char* folder = std::getenv(variable);
    if (folder != nullptr && folder[0] != '/') unsetenv(variable);
  }
}

void PrepareProcess() {
  OccupyStandardFiles();
  std::setlocale(LC_ALL, "");
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGCHLD, SIG_DFL);
  SurviveFileSizeLimit();
  KeepWholePathsOnly();
  ForgetRelativeFolders();
}

}  // namespace tessara
