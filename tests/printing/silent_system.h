#pragma once

#include <doctest/doctest.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tessara::test {

/// A printing system that takes connections and never answers.
class SilentSystem {
 public:
  explicit SilentSystem(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    REQUIRE(bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    REQUIRE(listen(socket_, SOMAXCONN) == 0);
  }
  SilentSystem(const SilentSystem&) = delete;
  SilentSystem& operator=(const SilentSystem&) = delete;
  ~SilentSystem() { close(socket_); }

 private:
  int socket_ = socket(AF_UNIX, SOCK_STREAM, 0);
};

}  // namespace tessara::test
