#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "adapters/libreoffice/office_process.h"

namespace tessara {

/// Ends a server that does not answer in time, so that whoever waits for it gets an error.
class Watchdog {
 public:
  /// Most that one operation may take, the start of the server included.
  static constexpr std::chrono::seconds kPatience{20};

  explicit Watchdog(OfficeProcess& process);

  /// While it stands, an answer is waited for.
  class Wait {
   public:
    explicit Wait(Watchdog& watchdog);
    ~Wait();
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

   private:
    Watchdog& watchdog_;
  };

 private:
  using Clock = std::chrono::steady_clock;

  void Set(std::optional<Clock::time_point> deadline);
  void Watch(const std::stop_token& stop);

  OfficeProcess& process_;
  std::mutex mutex_;
  std::condition_variable_any changed_;
  std::optional<Clock::time_point> deadline_;
  std::jthread thread_;  ///< the last member: it uses the others
};

}  // namespace tessara
