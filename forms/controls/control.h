#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/text.h"
#include "forms/geometry.h"
#include "forms/look.h"

namespace tessara {

class Form;
class WindowSystem;

/// The kinds of control, for whoever shows them.
enum class ControlKind {
  kButton,
  kOptionButton,
  kCheckBox,
  kFrame,
  kPictureBox,
  kImage,
  kLabel,
  kShape,
  kLine,
  kTextBox,
  kComboBox,
  kListView,
  kPainted,
};

/// What of a control has changed.
enum class Aspect {
  kBounds,
  kVisible,
  kEnabled,
  kCaption,
  kFont,
  kColor,
  kText,
  kLimit,
  kValue,
  kPicture,
  kItems,
  kSelection,
  kContent,
};

inline constexpr int kNoIndex = -1;

/// One control of a form. Its state is the truth; a widget on screen follows it. A setter does
/// nothing where the value is equal. A control belongs to a form from Form::AddControls on; before
/// that the bounds are zero.
class Control {
 public:
  /// The name that the running program knows it by, for screen readers and tests, and the index of
  /// a member of an array. Example: Button flip{"Command3(1)"}.
  explicit Control(std::string givenName, int index = kNoIndex)
      : name_(std::move(givenName)), index_(index) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] virtual ControlKind Kind() const = 0;
  /// "Command3(1)" for a member of a control array, "Label1" for a control that stands alone.
  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] int Index() const { return index_; }
  /// What a screen reader says, with the caption where this is empty.
  [[nodiscard]] const Text& AccessibleName() const { return accessibleName_; }
  [[nodiscard]] Form& Owner() const { return *owner_; }
  /// The frame or picture box that holds the control; null where the form itself does.
  [[nodiscard]] Control* Container() const { return container_; }

  /// Twips, relative to the container.
  [[nodiscard]] const Bounds& BoundsOf() const { return bounds_; }
  void SetBounds(const Bounds& bounds);
  void SetLeft(int left);
  void SetTop(int top);
  void SetWidth(int width);
  void SetHeight(int height);

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  /// True where neither the control, a container of it nor its form is hidden.
  [[nodiscard]] bool OnShow() const;
  /// True where the user can reach it: on show, and everything down to it is enabled.
  [[nodiscard]] bool Reachable() const;
  /// True where the user's input reaches it: reachable, in a window that takes input.
  [[nodiscard]] bool TakesInput() const;

  [[nodiscard]] const Font& FontOf() const { return font_; }
  void SetFont(const Font& font);
  void SetBold(bool bold);
  [[nodiscard]] const Color& ForeColor() const { return foreColor_; }
  void SetForeColor(const Color& color);
  [[nodiscard]] const Color& BackColor() const { return backColor_; }
  void SetBackColor(const Color& color);

  /// True for a control that takes the focus.
  [[nodiscard]] virtual bool TakesFocus() const { return false; }
  /// Raises error 5 where the control is not reachable or its window not on screen.
  void SetFocus();

  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  std::function<void()> onMouseMove;
  /// The character's code; only characters that a key typed.
  std::function<void(char16_t)> onKeyPress;
  std::function<void()> onKeyUp;

  /// What the user did.
  void UserMouseMove();
  void UserKeyPress(char16_t character);
  void UserKeyUp();

 protected:
  void Changed(Aspect aspect);
  /// Runs a handler under the guard of events.
  void Raise(const std::function<void()>& handler) const;

 private:
  friend class Form;

  std::string name_;
  int index_;
  Text accessibleName_;
  Form* owner_ = nullptr;
  Control* container_ = nullptr;
  Bounds bounds_;
  bool visible_ = true;
  bool enabled_ = true;
  Font font_;
  Color foreColor_;
  Color backColor_;
};

/// A control with a caption. "&" marks the accelerator, "&&" shows one "&".
class CaptionedControl : public Control {
 public:
  using Control::Control;
  [[nodiscard]] const Text& Caption() const { return caption_; }
  void SetCaption(const Text& caption);
  /// The accelerator's letter in upper case, or 0.
  [[nodiscard]] char16_t Accelerator() const;

 private:
  Text caption_;
};

/// The letter behind a single "&" of a caption, in upper case, or 0.
[[nodiscard]] char16_t AcceleratorOf(TextView caption);
/// The caption as it reads: without its accelerator mark, doubled marks single.
[[nodiscard]] Text PlainCaption(TextView caption);

}  // namespace tessara
