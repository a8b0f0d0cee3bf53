#pragma once

#include "base/text.h"
#include "forms/app_frame.h"

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

/// Which list of the frame a picture is taken from.
inline constexpr int kWallPaperList = 0;
inline constexpr int kBackdropList = 1;

/// The picture of a key. "<NONE>" asks for a picture that no list holds: error 35600. An unknown
/// key is error 35601.
[[nodiscard]] const Picture& CardPicture(TextView key, int list, const AppFrame& frame);

}  // namespace tessara
