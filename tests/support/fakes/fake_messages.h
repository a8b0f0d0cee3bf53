#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "machine/message_box.h"
#include "tests/support/test_failure.h"

namespace tessara::test {

/// Message boxes that are answered beforehand. A box with OK alone needs no answer; a question
/// without one fails the test.
class FakeMessages : public MessageBoxes {
 public:
  struct Shown {
    Text text;
    int flags = 0;
    Text title;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  std::deque<MessageAnswer> answers;
  std::vector<Shown> shown;
  /// Runs while a box is up.
  std::function<void(const Shown&)> whileShown;

  MessageAnswer Show(const Text& text, int flags, const Text& title) override {
    shown.push_back({text, flags, title});
    if (whileShown) whileShown(shown.back());
    constexpr int kButtons = 15;
    if ((flags & kButtons) == kOkOnly) return MessageAnswer::kOk;
    if (answers.empty()) throw TestFailure{"no answer for: " + ToUtf8(text)};
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  /// The boxes shown so far, which it then forgets.
  std::vector<Shown> Take() { return std::exchange(shown, {}); }
};

}  // namespace tessara::test
