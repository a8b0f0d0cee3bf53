#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <span>

namespace tessara::test {

/// Numbers by chance that are the same for a seed wherever they are drawn: the library's own
/// distributions differ from one library to the next.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  /// From 0 to one less than the count, which is 1 or more.
  std::size_t Below(std::size_t count) { return engine_() % count; }
  /// From the first number to the last.
  int Between(int first, int last) {
    return first + static_cast<int>(Below(static_cast<std::size_t>(last - first) + 1));
  }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  /// One of some things; there is at least one.
  template <class Things>
  auto& OneOf(Things& things) {
    return *std::next(std::begin(things),
                      static_cast<int>(Below(static_cast<std::size_t>(std::size(things)))));
  }
  /// The place of a weight, by chance in proportion to it; the weights have a sum of 1 or more.
  std::size_t Weighed(std::span<const int> weights) {
    std::size_t sum = 0;
    for (const int weight : weights) sum += static_cast<std::size_t>(weight);
    std::size_t left = Below(sum);
    std::size_t place = 0;
    for (; left >= static_cast<std::size_t>(weights[place]); ++place) {
      left -= static_cast<std::size_t>(weights[place]);
    }
    return place;
  }

 private:
  std::mt19937 engine_;
};

}  // namespace tessara::test
