#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "base/run_time_error.h"

namespace tessara {

/// Controls of one name, told apart by their index from `First` on.
template <class C, int Count, int First = 0>
class ControlArray {
 public:
  static constexpr int kFirst = First;
  static constexpr int kLast = First + Count - 1;

  /// The members are named "givenName(index)".
  explicit ControlArray(const std::string& givenName)
      : ControlArray(givenName, std::make_integer_sequence<int, Count>()) {}

  /// Raises error 340 for an index that the array does not have.
  C& operator[](int index) { return controls_[Offset(index)]; }
  const C& operator[](int index) const { return controls_[Offset(index)]; }

  [[nodiscard]] auto begin() { return controls_.begin(); }
  [[nodiscard]] auto end() { return controls_.end(); }
  [[nodiscard]] auto begin() const { return controls_.begin(); }
  [[nodiscard]] auto end() const { return controls_.end(); }

  /// One handler for all: it gets the index. Example: Wire(&Button::onClick, handler).
  template <class Slot, class Owner>
  void Wire(Slot Owner::*slot, const std::function<void(int)>& handler) {
    for (int index = kFirst; index <= kLast; ++index) {
      (*this)[index].*slot = [handler, index] { handler(index); };
    }
  }

 private:
  template <int... Offsets>
  ControlArray(const std::string& givenName, std::integer_sequence<int, Offsets...> /*members*/)
      : controls_{C(MemberName(givenName, First + Offsets), First + Offsets)...} {}

  static std::string MemberName(const std::string& givenName, int index) {
    return givenName + "(" + std::to_string(index) + ")";
  }

  static std::size_t Offset(int index) {
    if (index < kFirst || index > kLast) throw RunTimeError(ErrorNumber::kControlArrayElement);
    return static_cast<std::size_t>(index - First);
  }

  std::array<C, Count> controls_;
};

}  // namespace tessara
