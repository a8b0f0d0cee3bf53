#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace tessara {

/// Notices that the desktop has another palette, font or density, or the window another screen.
class DesktopWatch : public QObject {
 public:
  /// `changed` runs once for all that has changed together.
  DesktopWatch(QWidget& window, std::function<void()> changed);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowScreens(QWidget& window);
  void NoteChange();

  std::function<void()> changed_;
  bool noted_ = false;
};

}  // namespace tessara
