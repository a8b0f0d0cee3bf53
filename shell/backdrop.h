#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "platform/desktop.h"

namespace tessara {

/// A hidden surface to paint the backdrop on.
class Frm1 : public Form {
 public:
  explicit Frm1(WindowSystem& system);

  PictureBox Picture1;
};

/// Paints the tile over a surface as large as the screen, one more row and column where it
/// divides the screen evenly, and makes that the frame's picture. Unloads the surface. Raises
/// error 6 where a place goes beyond 16 bits.
void TileMDIBkgd(Form& MDIForm, Window<Frm1> bkgdtiler, const Picture& bkgdfile,
                 const Desktop& desktop);

}  // namespace tessara
