#pragma once

#include <QApplication>
#include <QWidget>

namespace tessara {

/// Whether a box or a dialog is up in front of the widget's window. Qt keeps the mouse and the keys
/// away then; a click that was under way as the box came up, and one that a screen reader asks for,
/// come through all the same.
[[nodiscard]] inline bool BehindBox(const QWidget& widget) {
  const QWidget* box = QApplication::activeModalWidget();
  return box != nullptr && box != widget.window();
}

}  // namespace tessara
