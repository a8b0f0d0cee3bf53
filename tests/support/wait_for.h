#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>

namespace tessara::test {

/// Waits until the condition holds; fails the test, telling what it waited for, where it does not.
inline void WaitFor(const std::string& what, const std::function<bool()>& condition) {
  constexpr std::chrono::seconds kLongest{20};
  constexpr std::chrono::milliseconds kBetweenLooks{5};
  const auto start = std::chrono::steady_clock::now();
  while (!condition()) {
    if (std::chrono::steady_clock::now() - start > kLongest) {
      throw std::runtime_error("waited in vain for " + what);
    }
    std::this_thread::sleep_for(kBetweenLooks);
  }
}

}  // namespace tessara::test
