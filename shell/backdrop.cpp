#include "shell/backdrop.h"

#include "platform/conversion.h"

namespace tessara {

Frm1::Frm1(WindowSystem& system) : Form(system, "Frm1", FormKind::kOffScreen, u"") {
  Place({{&Picture1, "Picture1", kNoIndex, nullptr, u"", {0, 0, 0, 0}, u"Backdrop tile"}});
}

void TileMDIBkgd(Form& MDIForm, Window<Frm1> bkgdtiler, const Picture& bkgdfile,
                 const Desktop& desktop) {
  const std::int16_t columnsEnd = IntegerOf(static_cast<double>(desktop.ScreenWidth()));
  const std::int16_t rowsEnd = IntegerOf(static_cast<double>(desktop.ScreenHeight()));
  Frm1& surface = bkgdtiler.Loaded();
  surface.SetHeight(desktop.ScreenHeight() * kTwipsPerPixel);
  surface.SetWidth(desktop.ScreenWidth() * kTwipsPerPixel);
  surface.Picture1.SetTop(0);
  surface.Picture1.SetLeft(0);
  surface.Picture1.SetPicture(bkgdfile);
  const Picture& tile = surface.Picture1.PictureOf();
  for (std::int16_t y = 0; y <= rowsEnd; y = IntegerOf(static_cast<double>(y + tile.height))) {
    for (std::int16_t x = 0; x <= columnsEnd; x = IntegerOf(static_cast<double>(x + tile.width))) {
      surface.PaintPicture(tile, x, y);
    }
  }
  MDIForm.SetPicture(surface.Painted());
  bkgdtiler.Unload();
}

}  // namespace tessara
