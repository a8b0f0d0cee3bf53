#pragma once

namespace tessara {

/// A day of the calendar.
struct Date {
  int year = 2000;
  int month = 1;  ///< 1 to 12
  int day = 1;    ///< 1 to 31
};

/// The machine's clock, in the user's time zone.
class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual Date Today() const = 0;
};

}  // namespace tessara
