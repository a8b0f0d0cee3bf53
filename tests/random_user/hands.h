#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

namespace tessara::test {

/// What a user does with mouse and keyboard. Events take the road of real ones: to a top window,
/// and from there to whatever is in front at the place or has the focus.
class Hands {
 public:
  static void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
  static void DoubleClick(QWidget& widget, QPoint place);
  /// Drags from one place to another.
  static void Drag(QWidget& widget, QPoint from, QPoint to);
  static void Wheel(QWidget& widget, QPoint place, int notches);
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Letter by letter; stops where a letter has brought another window to the front.
  static void Type(const QString& text);
};

}  // namespace tessara::test
