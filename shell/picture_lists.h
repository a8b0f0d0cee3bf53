#pragma once

#include "forms/image_list.h"

namespace tessara {

/// The backdrop's tiles, in the order in which the set-up window lists them.
[[nodiscard]] ImageList BackdropTiles();
/// The card skins and the pictures of the print window.
[[nodiscard]] ImageList CardPictures();

}  // namespace tessara
