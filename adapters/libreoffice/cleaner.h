#pragma once

#include <string>
#include <sys/types.h>

namespace tessara {

/// A process of its own that removes a folder, and files that it is told of, when the object is
/// gone or the program has ended, in whatever way: it hears of both by the end of its input.
class Cleaner {
 public:
  /// Raises error 440 where it can't be started; the folder then stays.
  explicit Cleaner(const std::string& folder);
  /// Returns when everything is removed.
  ~Cleaner();
  Cleaner(const Cleaner&) = delete;
  Cleaner& operator=(const Cleaner&) = delete;

  /// A file by its whole path, which holds no line break.
  void AlsoRemove(const std::string& file) const;

 private:
  int input_ = -1;
  pid_t process_ = 0;
};

}  // namespace tessara
