#include "shell/splash.h"

#include "forms/renderer.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

constexpr int kClientWidth = 6210;
constexpr int kClientHeight = 2940;
constexpr int kYields = 5000;

}  // namespace

Splash::Splash(WindowSystem& system) : Form(system, "Splash", FormKind::kSplash, u"Tessara") {
  SetWidth(kClientWidth + kBorderAcross);
  SetHeight(kClientHeight + kBorderDown);
  constexpr Bounds kWholeClient = {0, 0, kClientWidth, kClientHeight};
  AddControls({{&picture, nullptr, u"", kWholeClient, u"Tessara 1.0"}});
  picture.SetPicture({"splash.png", 414, 196});
}

void SplashPause(Window<Splash> splash, Desktop& desktop) {
  splash->Show();
  splash->System().RendererOf().WaitUntilSeen(splash.Loaded());
  for (int yield = 0; yield < kYields; ++yield) desktop.Yield();
}

}  // namespace tessara
