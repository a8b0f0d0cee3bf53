#pragma once

#include <thread>

namespace tessara {

/// Reads the system's font configuration on a thread of its own, while the application connects
/// to its display: without it the first text would wait for the whole of it. Emoji then come from
/// a colour font where there is one: on paper, which may lack colours, they are of another.
class FontsAhead {
 public:
  FontsAhead();

  /// Before the first font is asked for: two readers would do the same work twice.
  void Wait();

 private:
  std::jthread reader_;
};

}  // namespace tessara
