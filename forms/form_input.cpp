#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/shared_letter.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// A label, a frame or a control that the user can't reach has no accelerator.
bool Carries(const Control& control, char16_t letter) {
  const ControlKind kind = control.Kind();
  const bool pressable = kind == ControlKind::kButton || kind == ControlKind::kOptionButton ||
                         kind == ControlKind::kCheckBox;
  return pressable && control.Reachable() &&
         static_cast<const CaptionedControl&>(control).Accelerator() == letter;
}

void Press(Control& control) {
  switch (control.Kind()) {
    case ControlKind::kButton:
      return static_cast<Button&>(control).Press();
    case ControlKind::kOptionButton:
      return static_cast<OptionButton&>(control).Press();
    case ControlKind::kCheckBox:
      return static_cast<CheckBox&>(control).Press();
    default:
      return;
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
  if (!TakesInput()) return false;
  const char16_t upper = UpperCase(TextView(&letter, 1)).front();
  const auto target = TargetOfLetter(
      controls_, focused_, [upper](const Control& control) { return Carries(control, upper); });
  if (target.item == nullptr) return false;
  if (target.alone) {
    Press(*target.item);
  } else {
    UserFocus(*target.item);
  }
  return true;
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

bool Form::UserPage(PageKey key) {
  return PressIfThere(key == PageKey::kUp ? pageBack_ : pageForward_);
}

bool Form::UserHelp() {
  if (helpEntry_ != nullptr) helpEntry_->UserChoose();
  return helpEntry_ != nullptr;
}

bool Form::UserKey(WindowKey key) {
  bool taken = false;
  if (TakesInput()) system_.Run([&] { taken = OnKey(key); });
  return taken;
}

void Form::UserDropFile(const Text& path) {
  if (TakesInput() && TakesFile(path)) system_.Run([&] { OnDropFile(path); });
}

}  // namespace tessara
