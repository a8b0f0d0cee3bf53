#pragma once

#include <chrono>
#include <filesystem>
#include <sys/types.h>
#include <vector>

namespace tessara {

/// A process of its own that removes a folder, and files elsewhere, when the object is gone, or
/// when the program and the server have both ended, in whatever way.
class Cleaner {
 public:
  /// Most that the object's end waits for it. It goes on behind that.
  static constexpr std::chrono::seconds kPatience{5};

  /// Raises error 440 where it can't be started; the folder then stays.
  Cleaner(const std::filesystem::path& folder, const std::vector<std::filesystem::path>& files,
          std::chrono::milliseconds patience = kPatience);
  /// To be called when the server has ended. Returns when everything is removed, or has taken too
  /// long.
  ~Cleaner();
  Cleaner(const Cleaner&) = delete;
  Cleaner& operator=(const Cleaner&) = delete;

  /// A file by whose last closing it hears of the end of all who have it open.
  [[nodiscard]] int SignOfLife() const { return input_; }

 private:
  std::chrono::milliseconds patience_;
  int input_ = -1;
  pid_t process_ = 0;
};

}  // namespace tessara
