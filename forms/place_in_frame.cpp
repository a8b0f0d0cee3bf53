#include "forms/place_in_frame.h"

#include <functional>

#include "base/run_time_error.h"
#include "forms/renderer.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// Runs the step; where the window is minimised or maximised, once more in its normal state.
void Step(Form& form, const std::function<void()>& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    if (error.Number() != ErrorNumber::kMinimisedOrMaximised) throw;
    form.SetState(WindowState::kNormal);
    step();
  }
}

}  // namespace

void PlaceInFrame(FormSlot& form, int height, int width) {
  PlaceInFrame(form.Instance(), height, width);
}

void PlaceInFrame(Form& form, int height, int width) {
  try {
    form.EnsureLoaded();
    Renderer& renderer = form.System().RendererOf();
    Step(form, [&] { form.SetHeight(height); });
    Step(form, [&] { form.SetWidth(width); });
    Step(form, [&] { form.SetTop((renderer.FrameScaleHeight() - form.Height()) / 2); });
    Step(form, [&] { form.SetLeft((renderer.FrameScaleWidth() - form.Width()) / 2); });
    Step(form, [&] { form.Show(); });
  } catch (const RunTimeError&) {
    // A window that can't be placed stays as it is; what it was to show it still can.
  }
}

void HoldWindowSize(int height, int width, Form& form) {
  if (form.Height() != height) {
    form.SetHeight(height);
  } else if (form.Width() != width) {
    form.SetWidth(width);
  }
}

}  // namespace tessara
