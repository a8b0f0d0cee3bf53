#include "viewer/card_picture.h"

namespace tessara {

namespace {

constexpr int kBeyondTheList = 12;

}  // namespace

const Picture& CardPicture(TextView xKey, int xList, const AppFrame& frame) {
  if (xKey == u"<NONE>") return frame.imgWallPaper().At(kBeyondTheList).picture;
  return (xList == kBackdropList ? frame.BKG() : frame.imgWallPaper()).At(xKey).picture;
}

}  // namespace tessara
