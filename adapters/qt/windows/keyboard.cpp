#include "adapters/qt/windows/keyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <optional>
#include <utility>

#include "adapters/qt/windows/form_window.h"
#include "adapters/qt/windows/frame_window.h"

namespace tessara {

namespace {

/// The captions of the program are in ASCII.
constexpr char16_t kLastLatin = u'~';

/// The letter of an accelerator; 0 for every other key.
char16_t AcceleratorIn(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  const bool character = key.key() > Qt::Key_Space && key.key() < Qt::Key_Escape;
  return modifiers == Qt::AltModifier && character ? static_cast<char16_t>(key.key()) : 0;
}

bool IsTextBox(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

/// Inside a text box Page Up and Page Down need Ctrl, for the box has a use for them.
bool TakePage(const QKeyEvent& key, const QWidget& receiver, Form& form) {
  if (IsTextBox(receiver) && !key.modifiers().testFlag(Qt::ControlModifier)) return false;
  return form.UserPage(key.key() == Qt::Key_PageUp ? PageKey::kUp : PageKey::kDown);
}

/// Ctrl+Return is the window's; plain Return is what has the focus first of all.
std::optional<WindowKey> WindowKeyIn(const QKeyEvent& key) {
  const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
  const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (isReturn && modifiers == Qt::ControlModifier) return WindowKey::kKeep;
  if (modifiers != Qt::NoModifier) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Left:
      return WindowKey::kLeft;
    case Qt::Key_Right:
      return WindowKey::kRight;
    case Qt::Key_Space:
      return WindowKey::kSpace;
    default:
      return std::nullopt;
  }
}

}  // namespace

Keyboard::Keyboard(WindowSystem& windows, FrameSource frame)
    : windows_(windows), frame_(std::move(frame)) {
  qApp->installEventFilter(this);
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!isKey || !watched->isWidgetType() || QApplication::activePopupWidget() != nullptr) {
    return false;
  }
  auto& receiver = static_cast<QWidget&>(*watched);
  Form* form = FormFor(receiver);
  if (form == nullptr) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  if (event->type() == QEvent::KeyPress) return Take(key, receiver, *form);
  // Claimed here, an accelerator comes as a key and not as one of Qt's. Where the keyboard has
  // another script, Qt knows the Latin letter of the key.
  const char16_t letter = AcceleratorIn(key);
  if (letter == 0 || letter > kLastLatin) return false;
  event->accept();
  return true;
}

/// A key that the frame gets is for the child in front. The frame's boxes and dialogs have their
/// keys for themselves.
Form* Keyboard::FormFor(QWidget& receiver) const {
  const bool inBox = dynamic_cast<FormWindow*>(receiver.window()) == nullptr;
  const FormWindow* window = inBox ? nullptr : WindowAround(&receiver);
  if (window == nullptr) return nullptr;
  Form* form = window->FormOf();
  const bool childInFront =
      form != nullptr && form->Kind() == FormKind::kFrame && windows_.ActiveChild() != nullptr;
  return childInFront ? windows_.ActiveChild() : form;
}

bool Keyboard::Take(const QKeyEvent& key, QWidget& receiver, Form& form) {
  const char16_t letter = AcceleratorIn(key);
  // One that nothing carries now is no text either.
  if (letter != 0) return TakeAccelerator(letter, form) || IsTextBox(receiver);
  if (TakeWindowKey(key, receiver, form)) return true;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return TakeReturn(receiver, form);
    case Qt::Key_Escape:
      return form.UserEscape();
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return TakePage(key, receiver, form);
    case Qt::Key_F1:
      return TakeHelp();
    case Qt::Key_F4:
      return key.modifiers().testFlag(Qt::ControlModifier) && TakeClose(form);
    default:
      return false;
  }
}

/// A menu bar that has the focus goes by the arrow keys itself. A key held down turns no card over
/// and back again.
bool Keyboard::TakeWindowKey(const QKeyEvent& key, const QWidget& receiver, Form& form) {
  const auto windowKey = WindowKeyIn(key);
  if (!windowKey || qobject_cast<const QMenuBar*>(&receiver) != nullptr) return false;
  const bool repeats = key.isAutoRepeat();
  const bool pages = *windowKey == WindowKey::kLeft || *windowKey == WindowKey::kRight;
  return (!repeats || pages) && form.UserKey(*windowKey);
}

bool Keyboard::TakeAccelerator(char16_t letter, Form& form) {
  if (form.UserAccelerator(letter)) return true;
  FrameWindow* frame = frame_();
  return form.TakesInput() && frame != nullptr && frame->OpenMenu(letter);
}

/// A button that has the focus is pressed itself; a box of several lines takes the line break.
bool Keyboard::TakeReturn(QWidget& receiver, Form& form) {
  if (auto* button = qobject_cast<QPushButton*>(&receiver)) {
    button->click();
    return true;
  }
  const auto* area = qobject_cast<QPlainTextEdit*>(&receiver);
  return (area == nullptr || area->isReadOnly()) && form.UserReturn();
}

/// For windows in the frame and beside it: without one, the key must not end the program.
bool Keyboard::TakeClose(Form& form) {
  if (form.Kind() == FormKind::kFrame) return false;
  form.UserClose();
  return true;
}

/// For the windows beside the frame too, where the menu's own keys do not reach.
bool Keyboard::TakeHelp() {
  Form* form = windows_.MenuBarForm();
  return form != nullptr && form->UserHelp();
}

}  // namespace tessara
