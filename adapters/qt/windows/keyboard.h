#pragma once

#include <QObject>
#include <functional>

#include "forms/window_system.h"

class QKeyEvent;

namespace tessara {

class FrameWindow;

/// The keys that belong to a whole window: accelerators, Return and Escape, Page Up and Page Down,
/// the key for help, and what a window has a use for beyond. It sees them before the widgets do,
/// and before Qt's own accelerators.
class Keyboard : public QObject {
 public:
  using FrameSource = std::function<FrameWindow*()>;
  Keyboard(WindowSystem& windows, FrameSource frame);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Take(const QKeyEvent& key, QWidget& receiver, Form& form);
  static bool TakeWindowKey(const QKeyEvent& key, const QWidget& receiver, Form& form);
  bool TakeAccelerator(char16_t letter, Form& form);
  bool TakeReturn(QWidget& receiver, Form& form);
  bool TakeHelp();
  static bool TakeClose(Form& form);
  [[nodiscard]] Form* FormFor(QWidget& receiver) const;

  WindowSystem& windows_;
  FrameSource frame_;
};

}  // namespace tessara
