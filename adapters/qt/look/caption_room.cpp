#include "adapters/qt/look/caption_room.h"

#include <algorithm>

#include "forms/form.h"

namespace tessara {

namespace {

bool Covers(const Bounds& other, int left, int end, int middle) {
  return other.left > left && other.left < end && other.top <= middle &&
         middle < other.top + other.height;
}

constexpr int kMostFreeHeight = 45;

bool IsBelow(const Bounds& other, const Bounds& own) {
  const bool beside = other.left >= own.left + own.width || own.left >= other.left + other.width;
  return !beside && other.top + other.height > own.top + own.height && other.top > own.top;
}

}  // namespace

int FreeHeightBelow(const Control& control) {
  const Bounds& own = control.BoundsOf();
  const int bottom = own.top + own.height;
  int free = kMostFreeHeight;
  if (control.Container() != nullptr) {
    free = std::min(free, control.Container()->BoundsOf().height - bottom);
  }
  for (const Control* other : control.Owner().Controls()) {
    const bool inSamePlace = other != &control && other->Container() == control.Container();
    if (inSamePlace && IsBelow(other->BoundsOf(), own)) {
      free = std::min(free, other->BoundsOf().top - bottom);
    }
  }
  return std::max(0, free);
}

int CoveredWidth(const Control& control) {
  const auto& all = control.Owner().Controls();
  const Bounds& own = control.BoundsOf();
  int end = own.left + own.width;
  // From back to front.
  for (auto at = std::find(all.begin(), all.end(), &control); at != all.end(); ++at) {
    const Bounds& other = (*at)->BoundsOf();
    const bool beside = (*at)->Container() == control.Container();
    if (beside && Covers(other, own.left, end, own.top + own.height / 2)) end = other.left;
  }
  return own.left + own.width - end;
}

}  // namespace tessara
