#include "tests/random_user/dice.h"

#include <array>
#include <doctest/doctest.h>
#include <vector>

using namespace tessara::test;

TEST_CASE("a seed gives the same numbers everywhere") {
  Dice dice(1);
  std::vector<std::size_t> drawn;
  for (int count = 0; count < 5; ++count) drawn.push_back(dice.Below(1000));
  CHECK(drawn == std::vector<std::size_t>{845, 139, 124, 368, 263});
}

TEST_CASE("numbers come from the whole of their range and from nowhere else") {
  Dice dice(7);
  std::array<int, 4> met{};
  for (int count = 0; count < 200; ++count)
    ++met.at(static_cast<std::size_t>(dice.Between(-1, 2) + 1));
  for (const int times : met) CHECK(times > 20);
}

TEST_CASE("what has no weight is never chosen, and more weight is chosen more often") {
  Dice dice(3);
  constexpr std::array kWeights{0, 1, 9, 0};
  std::array<int, 4> met{};
  for (int count = 0; count < 1000; ++count) ++met.at(dice.Weighed(kWeights));
  CHECK(met[0] == 0);
  CHECK(met[3] == 0);
  CHECK(met[1] > 20);
  CHECK(met[2] > 5 * met[1]);
}
