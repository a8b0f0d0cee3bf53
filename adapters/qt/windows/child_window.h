#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>

#include "adapters/qt/views/control_view.h"
#include "adapters/qt/windows/form_surface.h"
#include "adapters/qt/windows/form_window.h"

namespace tessara {

/// A window inside the frame, of fixed size, with a close box and no other buttons. Its client area
/// has the form's size whatever border the desktop draws, and stands where it would stand
/// inside a border of kBorderAcross and kBorderDown twips, with which the forms count.
class ChildWindow final : public QMdiSubWindow, public FormWindow {
 public:
  ChildWindow(Form& form, QMdiArea& area, const ViewContext& context);

  [[nodiscard]] Form* FormOf() const override { return form_; }
  [[nodiscard]] FormSurface* Surface() const override { return surface_; }
  [[nodiscard]] QWidget& Top() override { return *this; }
  void Follow(FormAspect aspect) override;
  void FollowDesktop(DesktopChange change) override;
  void ComeForward() override;
  void Detach() override;
  void Leave() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void FollowBounds();
  void FollowState();
  /// How much wider and higher this desktop's border is than the forms' own.
  [[nodiscard]] QSize BorderDifference() const;

  Form* form_;
  QMdiArea& area_;
  const ViewContext& context_;
  FormSurface* surface_;
  bool following_ = false;
};

}  // namespace tessara
