#include "forms/place_in_frame.h"

#include <functional>

#include "platform/run_time_error.h"

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

void PlaceInFrame(WindowSlot& xForm, int xHeight, int xWidth, const AppFrame& frame) {
  PlaceInFrame(xForm.Instance(), xHeight, xWidth, frame);
}

void PlaceInFrame(Form& xForm, int xHeight, int xWidth, const AppFrame& frame) {
  try {
    xForm.EnsureLoaded();
    Step(xForm, [&] { xForm.SetHeight(xHeight); });
    Step(xForm, [&] { xForm.SetWidth(xWidth); });
    Step(xForm, [&] { xForm.SetTop((frame.ScaleHeight() - xForm.Height()) / 2); });
    Step(xForm, [&] { xForm.SetLeft((frame.ScaleWidth() - xForm.Width()) / 2); });
    Step(xForm, [&] { xForm.Show(); });
  } catch (const RunTimeError&) {
    // A window that can't be placed stays as it is; what it was to show it still can.
  }
}

void HoldWindowSize(int xHeight, int xWidth, Form& xForm) {
  if (xForm.Height() != xHeight) {
    xForm.SetHeight(xHeight);
  } else if (xForm.Width() != xWidth) {
    xForm.SetWidth(xWidth);
  }
}

}  // namespace tessara
