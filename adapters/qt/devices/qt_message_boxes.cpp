#include "adapters/qt/devices/qt_message_boxes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>

#include "adapters/qt/devices/plain_pointer.h"
#include "adapters/qt/text/qt_text.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// The most characters that a message box shows; a text without end would fill the screen.
constexpr std::size_t kLongestMessage = 1024;
constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0xF0;

/// A box that only its buttons answer: Escape and the close box are no answer to Yes or No.
class AnswerBox : public QMessageBox {
 public:
  AnswerBox(QWidget* parent, bool needsButton) : QMessageBox(parent), needsButton_(needsButton) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (needsButton_ && event->key() == Qt::Key_Escape) return;
    QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (needsButton_) return event->ignore();
    QMessageBox::closeEvent(event);
  }

 private:
  bool needsButton_;
};

QMessageBox::Icon IconOf(int flags) {
  switch (flags & kIconBits) {
    case kStopIcon:
      return QMessageBox::Critical;
    case kQuestionIcon:
      return QMessageBox::Question;
    case kExclamationIcon:
      return QMessageBox::Warning;
    case kInformationIcon:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QString NameOf(QMessageBox::Icon icon) {
  switch (icon) {
    case QMessageBox::Critical:
      return QStringLiteral("Error");
    case QMessageBox::Question:
      return QStringLiteral("Question");
    case QMessageBox::Warning:
      return QStringLiteral("Warning");
    default:
      return QStringLiteral("Information");
  }
}

/// The icon as a screen reader says it.
void NameIcon(const QMessageBox& box) {
  auto* icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
  if (icon != nullptr) icon->setAccessibleName(NameOf(box.icon()));
}

/// In the order that the number of the default button counts by.
QList<QMessageBox::StandardButton> ButtonsOf(int flags) {
  switch (flags & kButtonBits) {
    case kOkCancel:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case kYesNoCancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case kYesNo:
      return {QMessageBox::Yes, QMessageBox::No};
    default:
      return {QMessageBox::Ok};
  }
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::kYes;
    case QMessageBox::No:
      return MessageAnswer::kNo;
    case QMessageBox::Ok:
      return MessageAnswer::kOk;
    default:
      return MessageAnswer::kCancel;
  }
}

}  // namespace

MessageAnswer ShowMessageBox(const Text& text, int flags, const Text& title) {
  AnswerBox box(QApplication::activeWindow(), (flags & kButtonBits) == kYesNo);
  box.setTextFormat(Qt::PlainText);
  box.setText(LinesForQt(text.substr(0, kLongestMessage)));
  box.setWindowTitle(TitleForQt(title));
  box.setIcon(IconOf(flags));
  NameIcon(box);
  const auto buttons = ButtonsOf(flags);
  for (const auto button : buttons) box.addButton(button);
  const bool second = (flags & kSecondButtonDefault) != 0 && buttons.size() > 1;
  box.setDefaultButton(buttons[second ? 1 : 0]);
  const PlainPointer pointer;
  return AnswerOf(box.exec());
}

MessageAnswer QtMessageBoxes::Show(const Text& text, int flags, const Text& title) {
  const MessageAnswer answer = ShowMessageBox(text, flags, title);
  if (windows_ != nullptr) windows_->LeaveIfEnded();
  return answer;
}

}  // namespace tessara
