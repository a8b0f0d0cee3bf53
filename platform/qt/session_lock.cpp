#include "platform/qt/session_lock.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessara {

namespace {

std::string FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

/// The display that the session is seen on: ":0" and ":0.0" are one.
std::string Display() {
  const std::string x = FromEnvironment("DISPLAY");
  std::string display = x.empty() ? FromEnvironment("WAYLAND_DISPLAY") : x;
  const auto colon = display.rfind(':');
  const auto screen = colon == std::string::npos ? colon : display.find('.', colon);
  if (screen != std::string::npos) display.resize(screen);
  std::replace(display.begin(), display.end(), '/', '_');
  return display;
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

}  // namespace

std::string SessionLock::Path() {
  const std::string runtime = FromEnvironment("XDG_RUNTIME_DIR");
  if (IsFolder(runtime)) return runtime + "/tessara-" + Display() + ".lock";
  const std::string temporary = FromEnvironment("TMPDIR");
  return (IsFolder(temporary) ? temporary : "/tmp") + "/tessara-" + std::to_string(getuid()) + "-" +
         Display() + ".lock";
}

SessionLock::~SessionLock() {
  if (file_ >= 0) close(file_);
}

bool SessionLock::Acquire() {
  if (file_ >= 0) return true;
  file_ = open(Path().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
  if (file_ < 0 || flock(file_, LOCK_EX | LOCK_NB) == 0) return true;
  const bool held = errno == EWOULDBLOCK;
  close(file_);
  file_ = -1;
  return !held;
}

}  // namespace tessara
