#pragma once

#include <QObject>
#include <QWidget>

#include "adapters/qt/look/view_context.h"
#include "forms/controls/control.h"

namespace tessara {

/// Shows one control with a widget: the widget follows the control, and what the user does goes to
/// the control. It belongs to its widget, which outlives the control by a moment where a window
/// closes inside one of its own events: Detach comes between the two.
class ControlView : public QObject {
 public:
  ControlView(Control& control, QWidget& widget, const ViewContext& context);

  [[nodiscard]] QWidget& Widget() const { return widget_; }
  void FollowAll();
  void Follow(Aspect aspect);
  /// The desktop has another palette, font or density.
  virtual void FollowDesktop();
  /// The control is about to go.
  void Detach() { control_ = nullptr; }

 protected:
  /// What the kind of control has beyond place, visibility, enabling, font and colours.
  virtual void FollowOwn(Aspect aspect) { (void)aspect; }
  virtual void FollowFont();
  /// Calls Prepare: now where the widget is on screen, else once when it comes there, however much
  /// of the control changes before that.
  void PrepareWhenSeen();
  /// What takes time, and only shows: a caption fitted to its room, a picture read from its file.
  virtual void Prepare() {}
  /// The left button went down and up on the widget.
  virtual void Clicked() {}
  bool eventFilter(QObject* watched, QEvent* event) override;

  [[nodiscard]] bool Detached() const { return control_ == nullptr; }
  template <class C>
  [[nodiscard]] C& As() const {
    return static_cast<C&>(*control_);
  }
  [[nodiscard]] const ViewContext& Context() const { return context_; }

 private:
  void FollowColors();
  void FollowEnabled();
  void PassKey(const QString& typed);
  /// Hands the event to the control. True where the widget is not to have it any more.
  bool PassOn(QEvent& event);

  Control* control_;
  QWidget& widget_;
  const ViewContext& context_;
  bool preparesAtShow_ = false;
};

}  // namespace tessara
