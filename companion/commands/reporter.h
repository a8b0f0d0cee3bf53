#pragma once

#include <cstdio>
#include <string>

#include "companion/cards/complaints.h"

namespace tessara {

/// Exit statuses of the commands; those of `check` are its own.
enum ExitStatus : int { kDone = 0, kRefused = 1, kNotAllKept = 2 };

/// Writes what could not be kept to standard error, and remembers that there was something.
class Reporter : public Losses {
 public:
  void Tell(const Place& place, const std::string& what) override;
  /// Tells what is no loss.
  static void Say(const std::string& message);
  /// Tells what takes a while, to somebody who is waiting at a terminal.
  static void SayProgress(const std::string& message);
  [[nodiscard]] bool HasLosses() const { return hasLosses_; }

 private:
  bool hasLosses_ = false;
};

}  // namespace tessara
