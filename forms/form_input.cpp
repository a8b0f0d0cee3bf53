#include <algorithm>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// The control that an accelerator works on: a label, a frame or a disabled control has none.
bool PressByAccelerator(Control& control) {
  if (!control.Reachable()) return false;
  switch (control.Kind()) {
    case ControlKind::kButton:
      static_cast<Button&>(control).Press();
      return true;
    case ControlKind::kOptionButton:
      static_cast<OptionButton&>(control).Press();
      return true;
    case ControlKind::kCheckBox:
      static_cast<CheckBox&>(control).Press();
      return true;
    default:
      return false;
  }
}

Button* FindButton(const std::vector<Control*>& controls, bool (Button::*test)() const) {
  for (Control* control : controls) {
    if (control->Kind() != ControlKind::kButton) continue;
    auto* button = static_cast<Button*>(control);
    if ((button->*test)()) return button;
  }
  return nullptr;
}

bool PressIfThere(Button* button) {
  if (button == nullptr) return false;
  button->Press();
  return true;
}

}  // namespace

bool Form::TakesInput() const {
  const Form* modal = system_.ModalForm();
  return loaded_ && enabled_ && (modal == nullptr || modal == this) && !system_.ExitStatus();
}

void Form::UserActivate() {
  if (TakesInput() && visible_ && system_.ActiveForm() != this) {
    system_.Run([this] { system_.BringForward(*this); });
  }
}

void Form::UserClick() {
  if (TakesInput()) system_.Run([this] { OnClick(); });
}

void Form::UserMouseMove() {
  if (TakesInput()) system_.Run([this] { OnMouseMove(); });
}

void Form::UserClose() {
  if (TakesInput()) system_.Run([this] { Unload(); });
}

void Form::UserMove(int left, int top) {
  bounds_.left = left;
  bounds_.top = top;
}

void Form::UserFocus(Control& control) {
  if (control.TakesInput() && control.TakesFocus()) {
    system_.Run([this, &control] { MoveFocus(&control); });
  }
}

void Form::MoveFocus(Control* control) {
  if (focused_ == control) return;
  Control* before = focused_;
  focused_ = control;
  if (before != nullptr && before->onLostFocus) system_.Run(before->onLostFocus);
  system_.RendererOf().FocusChanged(*this);
  if (focused_ == control && control->onGotFocus) system_.Run(control->onGotFocus);
}

bool Form::UserAccelerator(char16_t letter) {
  const Text upper = UpperCase(TextView(&letter, 1));
  return TakesInput() && std::any_of(controls_.begin(), controls_.end(), [&](Control* control) {
           const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
           return captioned != nullptr && captioned->Accelerator() == upper.front() &&
                  PressByAccelerator(*control);
         });
}

bool Form::UserReturn() {
  if (focused_ != nullptr && focused_->Kind() == ControlKind::kLabel) {
    static_cast<Label*>(focused_)->UserClick();
    return true;
  }
  return PressIfThere(FindButton(controls_, &Button::IsDefault));
}

bool Form::UserEscape() {
  return PressIfThere(FindButton(controls_, &Button::IsCancel));
}

}  // namespace tessara
