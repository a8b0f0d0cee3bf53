#pragma once

#include "adapters/qt/views/control_view.h"
#include "adapters/qt/windows/form_surface.h"
#include "adapters/qt/windows/form_window.h"

namespace tessara {

/// A window of its own and of fixed size: a dialog over the frame, or the start-up picture.
class DialogWindow final : public QWidget, public FormWindow {
 public:
  DialogWindow(Form& form, QWidget* frame, const ViewContext& context);

  [[nodiscard]] Form* FormOf() const override { return form_; }
  [[nodiscard]] FormSurface* Surface() const override { return surface_; }
  [[nodiscard]] QWidget& Top() override { return *this; }
  void Follow(FormAspect aspect) override;
  void FollowDesktop(DesktopChange change) override;
  void ComeForward() override;
  void Detach() override;
  void Leave() override;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void FollowBounds();
  void FollowVisible();

  Form* form_;
  const ViewContext& context_;
  FormSurface* surface_;
};

}  // namespace tessara
