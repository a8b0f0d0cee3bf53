#pragma once

#include <QWidget>

#include "forms/renderer.h"

namespace tessara {

class FormSurface;

/// What of the desktop is another: its palette, its screens, or how large things are, too.
enum class DesktopChange { kLook, kScale };

/// The window of one form on screen.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  /// The form; null once it is unloaded.
  [[nodiscard]] virtual Form* FormOf() const = 0;
  /// The client area with the controls; null for the frame, which has none.
  [[nodiscard]] virtual FormSurface* Surface() const = 0;
  [[nodiscard]] virtual QWidget& Top() = 0;
  virtual void Follow(FormAspect aspect) = 0;
  virtual void FollowDesktop(DesktopChange change) = 0;
  virtual void ComeForward() = 0;
  /// The form has been unloaded: the window knows it no more.
  virtual void Detach() = 0;
  /// Goes from the screen, detached, and is destroyed soon after.
  virtual void Leave() = 0;
};

/// The window that a widget is in, or null.
[[nodiscard]] FormWindow* WindowAround(QWidget* widget);

}  // namespace tessara
