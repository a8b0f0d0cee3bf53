#pragma once

#include "base/text.h"

namespace tessara {

/// A look of the answer card. The settings choose it by its colour and its relief.
struct CardSkin {
  TextView key;         ///< of its picture among the pictures of cards
  const char* picture;  ///< file below data/pictures
  int width;            ///< of the picture, in pixels
  int height;
  TextView color;  ///< as the setting has it
  bool raised;
};

inline constexpr CardSkin kCardSkins[] = {
    {u"White Flat", "skins/white_flat.png", 323, 90, u"0", false},
    {u"White 3D", "skins/white_3d.png", 327, 93, u"0", true},
    {u"Yellow Flat", "skins/yellow_flat.png", 323, 90, u"1", false},
    {u"Yellow 3D", "skins/yellow_3d.png", 327, 93, u"1", true},
};

}  // namespace tessara
