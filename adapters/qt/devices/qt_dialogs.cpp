#include "adapters/qt/devices/qt_dialogs.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>

#include "adapters/qt/devices/file_dialog.h"
#include "adapters/qt/devices/plain_pointer.h"
#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"
#include "forms/window_system.h"

namespace tessara {

void QtDialogs::LeaveIfEnded() const {
  if (windows_ != nullptr) windows_->LeaveIfEnded();
}

Text QtDialogs::AskFile(const FileDialogRequest& request) {
  const PlainPointer pointer;
  FileDialog dialog(QApplication::activeWindow(), request);
  bool answered = false;
  while (!answered) {
    answered = dialog.Ask();
    LeaveIfEnded();
  }
  return dialog.Answer();
}

std::optional<Text> QtDialogs::AskText(const Text& prompt, const Text& title,
                                       const Text& defaultText) {
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setInputMode(QInputDialog::TextInput);
  dialog.setWindowTitle(TitleForQt(title));
  dialog.setLabelText(LinesForQt(prompt));
  dialog.setTextValue(OneLineForQt(defaultText));
  for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  const PlainPointer pointer;
  const bool accepted = dialog.exec() == QDialog::Accepted;
  LeaveIfEnded();
  if (!accepted) return std::nullopt;
  return FromQString(dialog.textValue());
}

PrinterChoice QtDialogs::AskPrinter() {
  const auto choice = printing_.Module().AskPrinter(QApplication::activeWindow());
  LeaveIfEnded();
  if (!choice) throw RunTimeError(ErrorNumber::kDialogCancelled);
  return *choice;
}

}  // namespace tessara
