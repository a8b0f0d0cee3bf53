#pragma once

#include <functional>

#include "forms/controls/control.h"

namespace tessara {

/// A push button. All ways to press it end in Press.
class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kButton; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  /// What Return presses where no other button has the focus, and what Escape presses.
  [[nodiscard]] bool IsDefault() const { return isDefault_; }
  [[nodiscard]] bool IsCancel() const { return isCancel_; }
  void SetDefaultAndCancel(bool on) { isDefault_ = isCancel_ = on; }
  void SetCancel(bool on) { isCancel_ = on; }

  /// Runs the click where the user can reach the button, else nothing.
  void Press();
  std::function<void()> onClick;

 private:
  bool isDefault_ = false;
  bool isCancel_ = false;
};

/// One choice of a group: the option buttons of one container.
class OptionButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kOptionButton; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  [[nodiscard]] bool Selected() const { return selected_; }
  /// Selecting a button that was not clears the others of its group without an event and runs
  /// the click; clearing runs none.
  void SetSelected(bool selected);
  /// True where the arrow keys select as they go from one to the next, as in any group; else they
  /// only go, and a blank selects.
  [[nodiscard]] bool ArrowsSelect() const { return arrowsSelect_; }
  void SetArrowsSelect(bool on) { arrowsSelect_ = on; }
  /// The user's click: selects; runs the click also where it was selected already.
  void Press();
  std::function<void()> onClick;

 private:
  bool selected_ = false;
  bool arrowsSelect_ = true;
};

class CheckBox : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kCheckBox; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  /// 0 unticked, 1 ticked, 2 neither. Other values raise error 380.
  [[nodiscard]] int Value() const { return value_; }
  [[nodiscard]] bool Ticked() const { return value_ == 1; }
  /// A different value runs the click.
  void SetValue(int value);
  void SetTicked(bool ticked) { SetValue(ticked ? 1 : 0); }
  /// The user's click turns it over.
  void Press();
  std::function<void()> onClick;

 private:
  int value_ = 0;
};

}  // namespace tessara
