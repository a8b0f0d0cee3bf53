#include "shell/picture_lists.h"

#include <string>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "viewer/card_skins.h"

namespace tessara {

namespace {

struct Tile {
  const char* key;
  const char* extension;
  int width;
  int height;
};

constexpr Tile kTiles[] = {
    {"DEFAULT", "jpg", 96, 96},  {"DIGITAL", "jpg", 64, 64},  {"DESERT", "gif", 160, 120},
    {"STUCCO", "gif", 100, 100}, {"BARS", "gif", 64, 64},     {"BLUESPH", "gif", 64, 64},
    {"CCURTIAN", "gif", 64, 64}, {"CH_LINK", "gif", 64, 64},  {"GRANITE", "gif", 64, 64},
    {"NEONGRID", "gif", 64, 64}, {"NETWORK", "gif", 64, 64},  {"OHIOSTAR", "gif", 64, 64},
    {"OLDBLUE", "gif", 64, 64},  {"P_GRID", "gif", 64, 64},   {"REDBRICK", "gif", 64, 64},
    {"S_NOISE", "gif", 64, 64},  {"STRIPES", "gif", 16, 16},  {"THREADS", "gif", 64, 64},
    {"WD_FLOOR", "gif", 64, 64}, {"SOFTGRID", "gif", 64, 64},
};

}  // namespace

ImageList MakeBackdropTiles() {
  std::vector<ImageList::Image> images;
  for (const Tile& tile : kTiles) {
    const std::string file = std::string("backdrops/") + tile.key + "." + tile.extension;
    images.push_back({FromUtf8(tile.key), {file, tile.width, tile.height}});
  }
  return ImageList(std::move(images));
}

ImageList MakeCardPictures() {
  std::vector<ImageList::Image> images;
  for (const CardSkin& skin : kCardSkins) {
    images.push_back({Text(skin.key), {skin.picture, skin.width, skin.height}});
  }
  images.push_back({u"Flip", {"print/flip.png", 117, 37}});
  images.push_back({u"NonFlip", {"print/nonflip.png", 117, 37}});
  images.push_back({u"FlipDisabled", {"print/flip_disabled.png", 117, 37}});
  return ImageList(std::move(images));
}

}  // namespace tessara
