#pragma once

#include <string>

namespace tessara {

/// A lock that one program of the user's session holds. The system takes it back when the program
/// ends, however it ends; programs that it starts do not inherit it.
class SessionLock {
 public:
  SessionLock() = default;
  SessionLock(const SessionLock&) = delete;
  SessionLock& operator=(const SessionLock&) = delete;
  ~SessionLock();

  /// False where another program holds it. Where no lock can be made, nothing is in the way.
  bool Acquire();

  /// The lock's file: one for each display of a user.
  [[nodiscard]] static std::string Path();

 private:
  int file_ = -1;
};

}  // namespace tessara
