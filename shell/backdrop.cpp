#include "shell/backdrop.h"

#include "base/conversion.h"

namespace tessara {

namespace {

/// They count from 1.
constexpr int kNoPicture = 0;

}  // namespace

const Picture& BackdropTile(TextView key, const AppFrame& frame) {
  const ImageList& tiles = frame.BackdropTiles();
  return (key == kNoBackdrop ? tiles.At(kNoPicture) : tiles.At(key)).picture;
}

BackdropSurface::BackdropSurface(WindowSystem& system)
    : Form(system, "Frm1", FormKind::kOffScreen, u"") {
  AddControls({{&tile, nullptr, u"", {0, 0, 0, 0}, u"Backdrop tile"}});
}

void TileBackdrop(Form& frame, Window<BackdropSurface> surfaceWindow, const Picture& picture,
                  const Desktop& desktop) {
  const std::int16_t columnsEnd = IntegerOf(static_cast<double>(desktop.ScreenWidth()));
  const std::int16_t rowsEnd = IntegerOf(static_cast<double>(desktop.ScreenHeight()));
  BackdropSurface& surface = surfaceWindow.Loaded();
  surface.SetHeight(desktop.ScreenHeight() * kTwipsPerPixel);
  surface.SetWidth(desktop.ScreenWidth() * kTwipsPerPixel);
  surface.tile.SetTop(0);
  surface.tile.SetLeft(0);
  surface.tile.SetPicture(picture);
  const Picture& tile = surface.tile.PictureOf();
  for (std::int16_t y = 0; y <= rowsEnd; y = IntegerOf(static_cast<double>(y + tile.height))) {
    for (std::int16_t x = 0; x <= columnsEnd; x = IntegerOf(static_cast<double>(x + tile.width))) {
      surface.PaintPicture(tile, x, y);
    }
  }
  frame.SetPicture(surface.Painted());
  surfaceWindow.Unload();
}

}  // namespace tessara
