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
  Cards missing = Missing(inTable);
  // The disk is read only where something has gone.
  if (!missing.empty()) missing = Without(missing, onDisk_());
  const std::size_t allowed = std::exchange(mayLoseOne_, false) ? 1 : 0;
  inTable_ = inTable;
  return missing.size() > allowed ? missing.size() : 0;
}

KeptWork::Cards KeptWork::Missing(const Cards& inTable) const {
  return Without(Without(inTable_, inTable), givenUp_);
}

}  // namespace tessara::test
