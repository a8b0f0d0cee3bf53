#pragma once

#include "machine/desktop.h"

namespace tessara {

/// For its life the pointer tells the user to wait. Over a dialog it is plain all the same.
class Hourglass {
 public:
  explicit Hourglass(Desktop& desktop) : desktop_(desktop) {
    desktop_.SetMousePointer(MousePointer::kHourglass);
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { desktop_.SetMousePointer(MousePointer::kDefault); }

 private:
  Desktop& desktop_;
};

}  // namespace tessara
