#pragma once

#include "machine/clock.h"

namespace tessara {

/// The machine's clock, in its own time zone.
class PosixClock : public Clock {
 public:
  [[nodiscard]] Date Today() const override;
};

}  // namespace tessara
