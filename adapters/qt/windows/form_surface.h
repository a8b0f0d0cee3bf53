#pragma once

#include <QPointer>
#include <QWidget>
#include <unordered_map>

#include "adapters/qt/views/control_view.h"
#include "forms/form.h"

namespace tessara {

/// The client area of a window: its controls, what is painted on it, and the clicks beside them.
class FormSurface : public QWidget {
 public:
  FormSurface(Form& form, QWidget* parent, const ViewContext& context);

  void Follow(Control& control, Aspect aspect);
  /// The form has been enabled, or disabled, or has another size.
  void FollowForm();
  /// The desktop has another palette, font or density.
  void FollowDesktop();
  /// Moves the focus to the control that is to have it, or to the next one that can.
  void TakeFocus();
  /// The form is about to go.
  void Detach();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void MakeViews();
  void FollowColors();
  [[nodiscard]] Control* WantedFocus() const;
  void KeepFocusFromStraying(const Control& control);
  void RestoreFocus();
  void TellReading();
  [[nodiscard]] ControlView& ViewOf(const Control& control) const;

  Form* form_;
  const ViewContext& context_;
  std::unordered_map<const Control*, ControlView*> views_;
  QPointer<QWidget> told_;  ///< whose description is the window's reading
  bool pressed_ = false;
};

}  // namespace tessara
