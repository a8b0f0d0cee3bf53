#pragma once

#include <string>

namespace tessara {

/// A lock that one program of the user's session holds. It is a name of the system's, no file: the
/// system takes it back when the program ends, however it ends, and nothing is left behind.
/// Programs that it starts do not inherit it.
class SessionLock {
 public:
  SessionLock() = default;
  SessionLock(const SessionLock&) = delete;
  SessionLock& operator=(const SessionLock&) = delete;
  ~SessionLock();

  /// False where another program holds it. Where no lock can be made, nothing is in the way.
  bool Acquire();

  /// The lock's name: one for each display of a session.
  [[nodiscard]] static std::string Name();

 private:
  int socket_ = -1;
};

}  // namespace tessara
