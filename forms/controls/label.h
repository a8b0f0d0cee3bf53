#pragma once

#include <functional>

#include "forms/controls/control.h"

namespace tessara {

/// A text that the user reads; a link is one that he follows.
class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kLabel; }
  [[nodiscard]] Alignment AlignmentOf() const { return alignment_; }
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }
  /// A link takes the focus, and Return is its click.
  [[nodiscard]] bool IsLink() const { return isLink_; }
  void SetLink(bool on) { isLink_ = on; }
  [[nodiscard]] bool TakesFocus() const override { return isLink_; }
  void UserClick();
  std::function<void()> onClick;

 private:
  Alignment alignment_ = Alignment::kLeft;
  bool isLink_ = false;
};

}  // namespace tessara
