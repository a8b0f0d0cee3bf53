#pragma once

#include <QApplication>
#include <exception>

#include "forms/window_system.h"

namespace tessara {

/// The application with a guard round what Qt runs by itself: painting, layout, timers. An error
/// there ends the program as one in an event of the windows does, with its report. Qt goes on as if
/// the event had come to its end, and reports it when it waits for the next one: a box that comes
/// up while a window is being painted would paint it again.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  /// Before, errors are let out. The windows stay until the last event.
  void SetWindows(WindowSystem& windows);
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void EndSoon(const std::exception_ptr& error);

  WindowSystem* windows_ = nullptr;
  bool ending_ = false;
};

}  // namespace tessara
