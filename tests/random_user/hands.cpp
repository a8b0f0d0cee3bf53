#include "tests/random_user/hands.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace tessara::test {

namespace {

QWindow* WindowOf(const QWidget& widget) {
  return widget.window()->windowHandle();
}

QPoint PlaceInWindow(const QWidget& widget, QPoint place) {
  return widget.mapTo(widget.window(), place);
}

/// The window that has the keyboard.
QWindow* KeysGoTo() {
  QWidget* popup = QApplication::activePopupWidget();
  if (popup != nullptr) return popup->windowHandle();
  return QGuiApplication::focusWindow();
}

}  // namespace

// A press alone can take the window away.
void Hands::Click(QWidget& widget, QPoint place, Qt::MouseButton button) {
  const QPointer<QWindow> window = WindowOf(widget);
  const QPoint inWindow = PlaceInWindow(widget, place);
  if (window) QTest::mousePress(window, button, Qt::NoModifier, inWindow);
  if (window) QTest::mouseRelease(window, button, Qt::NoModifier, inWindow);
}

void Hands::DoubleClick(QWidget& widget, QPoint place) {
  const QPointer<QWindow> window = WindowOf(widget);
  if (window) {
    QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, PlaceInWindow(widget, place));
  }
}

void Hands::Drag(QWidget& widget, QPoint from, QPoint to) {
  const QPointer<QWindow> window = WindowOf(widget);
  const QPoint first = PlaceInWindow(widget, from);
  const QPoint last = PlaceInWindow(widget, to);
  if (window) QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, first);
  if (window) QTest::mouseMove(window, last);
  if (window) QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, last);
}

void Hands::Wheel(QWidget& widget, QPoint place, int notches) {
  constexpr int kNotch = 120;
  QWindow* window = WindowOf(widget);
  if (window == nullptr) return;
  const QPoint inWindow = PlaceInWindow(widget, place);
  QWheelEvent turn(inWindow, window->mapToGlobal(inWindow), {}, QPoint(0, notches * kNotch),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(window, &turn);
}

void Hands::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWindow> window = KeysGoTo();
  if (window) QTest::keyPress(window, key, modifiers);
  if (window) QTest::keyRelease(window, key, modifiers);
}

void Hands::Type(const QString& text) {
  const QPointer<QWindow> window = KeysGoTo();
  for (const QChar letter : text) {
    if (window.isNull() || KeysGoTo() != window) return;
    QTest::sendKeyEvent(QTest::Click, window.data(), Qt::Key_unknown, QString(letter),
                        Qt::NoModifier);
  }
}

}  // namespace tessara::test
