#include "adapters/qt/look/caption_room.h"

#include <algorithm>

#include "forms/form.h"

namespace tessara {

namespace {

bool Covers(const Bounds& other, int left, int end, int middle) {
  return other.left > left && other.left < end && other.top <= middle &&
         middle < other.top + other.height;
}

}  // namespace

int UncoveredWidth(const Control& control) {
  const auto& all = control.Owner().Controls();
  const Bounds& own = control.BoundsOf();
  int end = own.left + own.width;
  // From back to front.
  for (auto at = std::find(all.begin(), all.end(), &control); at != all.end(); ++at) {
    const Bounds& other = (*at)->BoundsOf();
    const bool beside = (*at)->Container() == control.Container();
    if (beside && Covers(other, own.left, end, own.top + own.height / 2)) end = other.left;
  }
  return end - own.left;
}

}  // namespace tessara
