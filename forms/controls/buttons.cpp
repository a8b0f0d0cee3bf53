#include "forms/controls/buttons.h"

#include "base/run_time_error.h"
#include "forms/assign.h"
#include "forms/form.h"

namespace tessara {

void Button::Press() {
  if (TakesInput()) Raise(onClick);
}

void OptionButton::SetSelected(bool selected) {
  if (!Assign(selected_, selected)) return;
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
  if (!TakesInput()) return;
  if (selected_) {
    Raise(onClick);
  } else {
    SetSelected(true);
  }
}

void CheckBox::SetValue(int value) {
  if (value < 0 || value > 2) throw RunTimeError(ErrorNumber::kInvalidPropertyValue);
  if (!Assign(value_, value)) return;
  Changed(Aspect::kValue);
  Raise(onClick);
}

void CheckBox::Press() {
  if (TakesInput()) SetTicked(!Ticked());
}

}  // namespace tessara
