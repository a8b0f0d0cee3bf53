#pragma once

#include <QPointer>
#include <QScrollBar>

#include "adapters/qt/look/qt_canvas.h"
#include "adapters/qt/views/control_view.h"
#include "forms/controls/painted_control.h"

namespace tessara {

/// Shows a control that paints itself. Where its text is longer than its place, the wheel, the keys
/// and a scroll bar move it.
class PaintedView : public ControlView {
 public:
  PaintedView(PaintedControl& control, QWidget& parent, const ViewContext& context);
  void FollowDesktop() override;

 protected:
  void FollowOwn(Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowContent();
  void Paint();
  void FitScrollBarSoon();
  /// Brings the scroll bar in line with the text.
  void FitScrollBar();
  [[nodiscard]] QScrollBar& ScrollBar();
  bool ScrollByKey(int key);
  [[nodiscard]] Rect SizeInPixels() const;

  CanvasMemory memory_;
  QPointer<QScrollBar> scrollBar_;
  bool fitsScrollBar_ = false;
};

}  // namespace tessara
