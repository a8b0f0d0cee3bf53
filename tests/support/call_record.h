#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "base/utf8.h"
#include "machine/dialogs.h"

namespace tessara::test {

/// The calls that a recorder has got, as readable lines, and which of them are to fail.
class CallRecord {
 public:
  std::vector<std::string> calls;

  /// The `which`-th call that begins so, counted from 1, fails with the number.
  void FailAt(std::string beginning, ErrorNumber number, int which = 1) {
    failure_ = Failure{std::move(beginning), number, which};
  }
  void Add(const std::string& call) {
    calls.push_back(call);
    if (!failure_ || !call.starts_with(failure_->beginning) || --failure_->left > 0) return;
    const ErrorNumber number = failure_->number;
    failure_.reset();
    throw RunTimeError(number);
  }
  /// The calls so far, which it then forgets.
  std::vector<std::string> Take() { return std::exchange(calls, {}); }
  [[nodiscard]] long Count(const std::string& call) const {
    return std::count(calls.begin(), calls.end(), call);
  }

 private:
  struct Failure {
    std::string beginning;
    ErrorNumber number;
    int left;
  };
  std::optional<Failure> failure_;
};

inline std::string DestinationName(const PrintDestination& destination) {
  return destination.printer.empty() ? ToUtf8(destination.pdfFile) : ToUtf8(destination.printer);
}

}  // namespace tessara::test
