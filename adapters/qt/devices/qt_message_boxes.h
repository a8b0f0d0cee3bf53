#pragma once

#include "machine/message_box.h"

namespace tessara {

class WindowSystem;

/// Shows the box over the window in front and waits, whether the program ends meanwhile or not.
MessageAnswer ShowMessageBox(const Text& text, int flags, const Text& title);

/// Message boxes of the desktop's look, with texts and titles shown as they stand.
class QtMessageBoxes : public MessageBoxes {
 public:
  /// An event that waited for a box while the program ended is left when the box returns. Set once,
  /// since the window system itself is made with the boxes.
  void SetWindows(const WindowSystem& windows) { windows_ = &windows; }
  MessageAnswer Show(const Text& text, int flags, const Text& title) override;

 private:
  const WindowSystem* windows_ = nullptr;
};

}  // namespace tessara
