#include "adapters/libreoffice/watchdog.h"

namespace tessara {

Watchdog::Watchdog(OfficeProcess& process)
    : process_(process), thread_([this](const std::stop_token& stop) { Watch(stop); }) {}

Watchdog::Wait::Wait(Watchdog& watchdog) : watchdog_(watchdog) {
  watchdog_.Set(Clock::now() + kPatience);
}

Watchdog::Wait::~Wait() {
  watchdog_.Set(std::nullopt);
}

void Watchdog::Set(std::optional<Clock::time_point> deadline) {
  const std::lock_guard lock(mutex_);
  deadline_ = deadline;
  changed_.notify_one();
}

void Watchdog::Watch(const std::stop_token& stop) {
  std::unique_lock lock(mutex_);
  while (!stop.stop_requested()) {
    changed_.wait(lock, stop, [this] { return deadline_.has_value(); });
    if (!deadline_) continue;
    const Clock::time_point deadline = *deadline_;
    const bool answered =
        changed_.wait_until(lock, stop, deadline, [&] { return deadline_ != deadline; });
    if (answered || stop.stop_requested()) continue;
    process_.Kill();
    deadline_.reset();
  }
}

}  // namespace tessara
