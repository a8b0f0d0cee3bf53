#include "adapters/posix/posix_clock.h"

#include <ctime>

namespace tessara {

Date PosixClock::Today() const {
  constexpr int kFirstYear = 1900;
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return {parts.tm_year + kFirstYear, parts.tm_mon + 1, parts.tm_mday};
}

}  // namespace tessara
