#pragma once

#include "deck/app_frame.h"
#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "machine/desktop.h"

namespace tessara {

/// What the list of backdrops has for none.
inline constexpr TextView kNoBackdrop = u"<NONE>";

/// The tile of a key. Raises error 35600 for kNoBackdrop, for which no list has a picture, and
/// error 35601 for an unknown key.
[[nodiscard]] const Picture& BackdropTile(TextView key, const AppFrame& frame);

/// A hidden surface to paint the backdrop on.
class BackdropSurface : public Form {
 public:
  explicit BackdropSurface(WindowSystem& system);

  PictureBox tile{"Picture1"};
};

/// Paints the tile over a surface as large as the screen, one more row and column where it
/// divides the screen evenly, and makes that the frame's picture. Unloads the surface. Raises
/// error 6 where a place goes beyond 16 bits.
void TileBackdrop(Form& frame, Window<BackdropSurface> surfaceWindow, const Picture& picture,
                  const Desktop& desktop);

}  // namespace tessara
