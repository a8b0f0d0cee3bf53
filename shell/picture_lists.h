#pragma once

#include "forms/controls/image_list.h"

namespace tessara {

/// The backdrop's tiles, in the order in which the set-up window lists them; the setting holds the
/// key of one.
[[nodiscard]] ImageList MakeBackdropTiles();
/// The card skins by their keys, and the pictures of the print window.
[[nodiscard]] ImageList MakeCardPictures();

}  // namespace tessara
