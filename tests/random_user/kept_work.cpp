#include "tests/random_user/kept_work.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessara::test {

namespace {

KeptWork::Cards Without(const KeptWork::Cards& cards, const KeptWork::Cards& others) {
  KeptWork::Cards left;
  std::set_difference(cards.begin(), cards.end(), others.begin(), others.end(),
                      std::inserter(left, left.end()));
  return left;
}

}  // namespace

std::size_t KeptWork::Look(const Cards& inTable) {
  const bool mayLoseOne = std::exchange(mayLoseOne_, false);
  const Cards before = std::exchange(inTable_, inTable);
  // The disk is read only where something has changed.
  if (inTable == before) return 0;
  const Cards kept = onDisk_();
  const std::size_t gone = Without(Without(Without(before, inTable), givenUp_), kept).size();
  const std::size_t inMemoryAlone = Without(Without(inTable, givenUp_), kept).size();
  return inMemoryAlone + (gone > (mayLoseOne ? 1 : 0) ? gone : 0);
}

}  // namespace tessara::test
