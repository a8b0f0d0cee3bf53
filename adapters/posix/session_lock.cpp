#include "adapters/posix/session_lock.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
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

/// The folder that the session has for its running programs, by its numbers, which are short;
/// empty where it has none.
std::string RuntimeFolder() {
  struct stat status {};
  const std::string path = FromEnvironment("XDG_RUNTIME_DIR");
  const bool folder = stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
  return folder ? std::to_string(status.st_dev) + "." + std::to_string(status.st_ino) : "";
}

/// A name among the system's sockets that is no file.
struct Address {
  sockaddr_un socket{};
  socklen_t length = 0;

  [[nodiscard]] const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&socket); }
};

/// Nothing for a name that is too long.
std::optional<Address> AddressOf(const std::string& name) {
  Address address;
  // The first byte, 0, says that it is no path.
  if (name.size() + 1 > sizeof address.socket.sun_path) return std::nullopt;
  address.socket.sun_family = AF_UNIX;
  name.copy(address.socket.sun_path + 1, name.size());
  address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  return address;
}

int OpenSocket() {
  return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

bool IsUser(int connected) {
  ucred peer{};
  socklen_t length = sizeof peer;
  return getsockopt(connected, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 &&
         peer.uid == geteuid();
}

/// Another start that has just taken the name gets the time to listen.
bool Connects(int caller, const Address& address) {
  constexpr int kTries = 20;
  constexpr useconds_t kBetweenTries = 1000;
  for (int tries = 1;; ++tries) {
    if (connect(caller, address.Get(), address.length) == 0) return true;
    if (errno != ECONNREFUSED || tries == kTries) return false;
    usleep(kBetweenTries);
  }
}

/// Anybody can take a name: only another program of the user's counts.
bool IsHeldByUser(const Address& address) {
  const int caller = OpenSocket();
  if (caller < 0) return false;
  const bool connected = Connects(caller, address);
  const bool held = connected ? IsUser(caller) : errno == EAGAIN;
  close(caller);
  return held;
}

}  // namespace

std::string SessionLock::Name() {
  return "tessara-" + std::to_string(geteuid()) + "-" + RuntimeFolder() + "-" + Display();
}

SessionLock::~SessionLock() {
  if (socket_ >= 0) close(socket_);
}

bool SessionLock::Acquire() {
  const auto address = AddressOf(Name());
  if (socket_ >= 0 || !address) return true;
  socket_ = OpenSocket();
  if (socket_ < 0) return true;
  if (bind(socket_, address->Get(), address->length) == 0) {
    // Nobody is ever answered: a caller only looks who it is.
    listen(socket_, 1);
    return true;
  }
  const bool held = errno == EADDRINUSE && IsHeldByUser(*address);
  close(socket_);
  socket_ = -1;
  return !held;
}

}  // namespace tessara
