#pragma once

#include <QMainWindow>

#include "adapters/qt/windows/backdrop_area.h"
#include "adapters/qt/windows/form_window.h"
#include "adapters/qt/windows/menu_view.h"

namespace tessara {

/// The window that holds the others. It has one menu bar for its whole life, whose entries change.
class FrameWindow final : public QMainWindow, public FormWindow {
 public:
  FrameWindow(Form& form, const ViewContext& context);

  [[nodiscard]] Form* FormOf() const override { return form_; }
  [[nodiscard]] FormSurface* Surface() const override { return nullptr; }
  [[nodiscard]] QWidget& Top() override { return *this; }
  void Follow(FormAspect aspect) override;
  void FollowDesktop(DesktopChange change) override;
  void ComeForward() override;
  void Detach() override;
  void Leave() override;

  [[nodiscard]] BackdropArea& Area() const { return *area_; }
  void ShowMenus(const MenuView& menus);
  /// Their window is about to go.
  void ForgetMenus(const MenuView& menus);
  /// Opens the top-level menu that carries the accelerator. False where none does.
  bool OpenMenu(char16_t letter);

  /// Size that the window opens with, in pixels of the desktop, without border and title.
  [[nodiscard]] static QSize OpeningSize(const PixelScale& scale);

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ClearMenuBar();
  /// Takes what is dragged as a copy, where it is a file that the form takes.
  void TakeDrag(QDropEvent& event) const;

  Form* form_;
  const ViewContext& context_;
  BackdropArea* area_;
  const MenuView* menus_ = nullptr;
};

}  // namespace tessara
