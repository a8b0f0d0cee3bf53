#pragma once

#include <QEventLoop>
#include <unordered_map>

#include "adapters/qt/look/view_context.h"
#include "adapters/qt/windows/keyboard.h"
#include "adapters/qt/windows/menu_view.h"
#include "forms/renderer.h"

namespace tessara {

class FormWindow;
class FrameWindow;

/// Shows every form with real widgets. A window's widgets are made when it first comes on screen.
class QtRenderer : public Renderer {
 public:
  /// The program's pictures are files below `pictureFolder`.
  QtRenderer(WindowSystem& windows, const QString& pictureFolder);
  ~QtRenderer() override;
  QtRenderer(const QtRenderer&) = delete;
  QtRenderer& operator=(const QtRenderer&) = delete;

  void FormUnloaded(Form& form) override;
  void FormChanged(Form& form, FormAspect aspect) override;
  void ControlChanged(Control& control, Aspect aspect) override;
  void MenuChanged(MenuEntry& entry) override;
  void ActiveFormChanged(Form* form) override;
  void FocusChanged(Form& form) override;
  void WaitUntilSeen(Form& form) override;
  void RunModal(Form& form) override;
  int LineCount(const TextBox& box) override;
  int FrameScaleWidth() override;
  int FrameScaleHeight() override;
  void ProgramHasEnded(int exitStatus) override;

 private:
  [[nodiscard]] FormWindow* WindowOf(const Form& form) const;
  FormWindow& Make(Form& form);
  FrameWindow& MakeFrame(Form& form);
  void FollowDesktop();
  void ShowMenus();
  MenuView& MenusOf(Form& form);
  void DropMenusOf(const Form& form);
  void QuitModal(const Form& form);
  [[nodiscard]] QSize FrameClient() const;
  [[nodiscard]] double Density() const;

  WindowSystem& windows_;
  PixelScale scale_;
  PictureCache pictures_;
  CaptionFits captions_;
  ViewContext context_;
  Keyboard keyboard_;
  FrameWindow* frame_ = nullptr;
  std::unordered_map<const Form*, FormWindow*> shown_;
  std::unordered_map<const Form*, MenuView*> menus_;
  std::unordered_map<const Form*, QEventLoop*> modalLoops_;
  /// Above 0 while a window follows its form: what Qt activates then was not the user.
  int following_ = 0;
};

}  // namespace tessara
