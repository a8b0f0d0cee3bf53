#pragma once

#include "forms/form.h"
#include "forms/renderer.h"

namespace tessara {

/// Shows nothing: the windows work without a display. A modal window is closed at once.
class SilentRenderer : public Renderer {
 public:
  void FormUnloaded(Form&) override {}
  void FormChanged(Form&, FormAspect) override {}
  void ControlChanged(Control&, Aspect) override {}
  void MenuChanged(MenuEntry&) override {}
  void ActiveFormChanged(Form*) override {}
  void FocusChanged(Form&) override {}
  void WaitUntilSeen(Form&) override {}
  void RunModal(Form& form) override { form.Unload(); }
  int LineCount(const TextBox&) override { return 1; }
  int FrameScaleWidth() override { return kFrameWidth; }
  int FrameScaleHeight() override { return kFrameHeight; }
  void ProgramHasEnded(int) override {}

 private:
  // Twips; no sheet depends on them.
  static constexpr int kFrameWidth = 12000;
  static constexpr int kFrameHeight = 9000;
};

}  // namespace tessara
