#pragma once

#include <cerrno>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tessara {

inline constexpr int kFailed = -1;

/// Repeats the call for as long as a signal cuts it short.
template <class Call>
auto Uninterrupted(const Call& call) {
  auto result = call();
  while (result == kFailed && errno == EINTR) result = call();
  return result;
}

/// The result of a system call; a failed one raises its error code as std::system_error.
template <class Result>
Result Checked(Result result) {
  if (result == kFailed) throw std::system_error(errno, std::generic_category());
  return result;
}

/// An open descriptor, closed with it.
class Descriptor {
 public:
  /// Takes over `descriptor`; kFailed stands for none.
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (descriptor_ != kFailed) close(descriptor_);
  }

  [[nodiscard]] int Get() const { return descriptor_; }
  /// Hands it over to the caller, who closes it.
  [[nodiscard]] int Release() { return std::exchange(descriptor_, kFailed); }
  void Swap(Descriptor& other) { std::swap(descriptor_, other.descriptor_); }
  /// Closes it now. kFailed where what was written to it has not all arrived.
  [[nodiscard]] int Close() { return close(Release()); }

 private:
  int descriptor_;
};

/// Writes all of the bytes. A failed write raises its error code as std::system_error.
void WriteAll(int descriptor, std::string_view bytes);

}  // namespace tessara
