#pragma once

#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "machine/desktop.h"

namespace tessara {

/// The start-up picture, without a border.
class Splash : public Form {
 public:
  explicit Splash(WindowSystem& system);

  Image picture{"Image1"};
};

/// Shows the start-up picture and, once it is seen, hands control to the window system's queue 5000
/// times: that is the whole pause. The picture stays up.
void SplashPause(Window<Splash> splash, Desktop& desktop);

}  // namespace tessara
