#include "viewer/card_picture.h"

namespace tessara {

namespace {

constexpr int kBeyondTheList = 12;

}  // namespace

const Picture& CardPicture(TextView key, int list, const AppFrame& frame) {
  if (key == u"<NONE>") return frame.CardPictures().At(kBeyondTheList).picture;
  return (list == kBackdropList ? frame.BackdropTiles() : frame.CardPictures()).At(key).picture;
}

}  // namespace tessara
