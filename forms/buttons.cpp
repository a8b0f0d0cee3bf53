#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window_system.h"
#include "platform/run_time_error.h"

namespace tessara {

namespace {

bool UserReaches(const Control& control) {
  return control.Reachable() && control.Owner().TakesInput();
}

}  // namespace

void Button::Press() {
  if (UserReaches(*this)) Raise(onClick);
}

void OptionButton::SetSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  Changed(Aspect::kValue);
  if (!selected) return;
  for (Control* other : Owner().Controls()) {
    const bool sameGroup = other != this && other->Kind() == ControlKind::kOptionButton &&
                           other->Container() == Container();
    if (sameGroup) static_cast<OptionButton*>(other)->SetSelected(false);
  }
  Raise(onClick);
}

void OptionButton::Press() {
  if (!UserReaches(*this)) return;
  if (selected_) {
    Raise(onClick);
  } else {
    SetSelected(true);
  }
}

void CheckBox::SetValue(int value) {
  if (value < 0 || value > 2) throw RunTimeError(ErrorNumber::kInvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  Changed(Aspect::kValue);
  Raise(onClick);
}

void CheckBox::Press() {
  if (UserReaches(*this)) SetTicked(!Ticked());
}

void Image::UserClick() {
  if (UserReaches(*this)) Raise(onClick);
}

void Label::UserClick() {
  if (UserReaches(*this)) Raise(onClick);
}

}  // namespace tessara
