#include "forms/form.h"

#include <utility>

#include "base/run_time_error.h"
#include "forms/assign.h"
#include "forms/renderer.h"
#include "forms/window_system.h"

namespace tessara {

Form::Form(WindowSystem& system, std::string name, FormKind kind, Text caption)
    : system_(system), name_(std::move(name)), kind_(kind), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::SetCaption(const Text& caption) {
  if (Assign(caption_, caption)) Changed(FormAspect::kCaption);
}

void Form::SetLeft(int left) {
  SetBounds({left, bounds_.top, bounds_.width, bounds_.height});
}
void Form::SetTop(int top) {
  SetBounds({bounds_.left, top, bounds_.width, bounds_.height});
}
void Form::SetWidth(int width) {
  SetBounds({bounds_.left, bounds_.top, width, bounds_.height});
}
void Form::SetHeight(int height) {
  SetBounds({bounds_.left, bounds_.top, bounds_.width, height});
}

void Form::SetBounds(const Bounds& bounds) {
  CheckMovable();
  const bool sizeDiffers = bounds_.width != bounds.width || bounds_.height != bounds.height;
  if (!Assign(bounds_, bounds)) return;
  Changed(FormAspect::kBounds);
  if (loaded_ && sizeDiffers) system_.Run([this] { OnResize(); });
}

void Form::CheckMovable() const {
  const bool child = kind_ == FormKind::kChild;
  if (child && state_ != WindowState::kNormal) {
    throw RunTimeError(ErrorNumber::kMinimisedOrMaximised);
  }
}

void Form::SetState(WindowState state) {
  if (Assign(state_, state)) Changed(FormAspect::kState);
}

void Form::SetEnabled(bool enabled) {
  if (Assign(enabled_, enabled)) Changed(FormAspect::kEnabled);
}

void Form::PaintPicture(const Picture& picture, int x, int y) {
  painted_.push_back({picture, x, y});
}

void Form::SetPicture(std::vector<PaintedPicture> painted) {
  painted_ = std::move(painted);
  Changed(FormAspect::kPicture);
}

void Form::Changed(FormAspect aspect) {
  if (loaded_) system_.RendererOf().FormChanged(*this, aspect);
}

}  // namespace tessara
