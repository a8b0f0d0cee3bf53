#pragma once

#include <functional>

#include "forms/controls/control.h"

namespace tessara {

/// A picture that can hold controls.
class PictureBox : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kPictureBox; }
  [[nodiscard]] const Picture& PictureOf() const { return picture_; }
  void SetPicture(const Picture& picture);

 private:
  Picture picture_;
};

/// A picture alone.
class Image : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kImage; }
  [[nodiscard]] const Picture& PictureOf() const { return picture_; }
  /// The image takes the picture's size.
  void SetPicture(const Picture& picture);
  void UserClick();
  std::function<void()> onClick;

 private:
  Picture picture_;
};

}  // namespace tessara
