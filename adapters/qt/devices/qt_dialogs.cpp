#include "adapters/qt/devices/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QSizeGrip>
#include <QSplitter>

#include "adapters/qt/look/accessible_role.h"
#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"
#include "forms/window_system.h"

namespace tessara {

namespace {

/// "Study Cards|*.tsr" as "Study Cards (*.tsr)", pair by pair.
QStringList NameFilters(TextView filter) {
  const QStringList parts = ToQString(filter).split(u'|');
  QStringList filters;
  for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
    filters += parts[at] + QLatin1String(" (") + QString(parts[at + 1]).replace(u';', u' ') + u')';
  }
  return filters;
}

void SetMode(QFileDialog& dialog, const FileDialogRequest& request) {
  const bool saves = request.mode == FileDialogMode::kSave;
  const bool mustExist = (request.flags & kFileMustExist) != 0;
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(mustExist && !saves ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
}

/// What Qt leaves nameless in a dialog of its own; the desktop's has none of it.
void NameParts(QFileDialog& dialog) {
  auto* panes = dialog.findChild<QSplitter*>();
  if (panes != nullptr) {
    panes->setAccessibleName(QStringLiteral("Places and files"));
    WithRole(*panes->handle(1), QAccessible::Grip).setAccessibleName(QStringLiteral("Divider"));
  }
  auto* corner = dialog.findChild<QSizeGrip*>();
  if (corner != nullptr) {
    WithRole(*corner, QAccessible::Grip).setAccessibleName(QStringLiteral("Size of the dialog"));
  }
}

}  // namespace

void QtDialogs::LeaveIfEnded() const {
  if (windows_ != nullptr) windows_->LeaveIfEnded();
}

Text QtDialogs::AskFile(const FileDialogRequest& request) {
  QFileDialog dialog(QApplication::activeWindow());
  SetMode(dialog, request);
  const QStringList filters = NameFilters(request.filter);
  dialog.setNameFilters(filters);
  const qsizetype chosen = request.filterIndex - 1;
  if (chosen >= 0 && chosen < filters.size()) dialog.selectNameFilter(filters[chosen]);
  dialog.setDirectory(ToQString(request.initialFolder));
  NameParts(dialog);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  LeaveIfEnded();
  const QStringList files = dialog.selectedFiles();
  return accepted && !files.isEmpty() ? FromQString(files.front()) : Text();
}

std::optional<Text> QtDialogs::AskText(const Text& prompt, const Text& title,
                                       const Text& defaultText) {
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setInputMode(QInputDialog::TextInput);
  dialog.setWindowTitle(TitleForQt(title));
  dialog.setLabelText(LinesForQt(prompt));
  dialog.setTextValue(OneLineForQt(defaultText));
  for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
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
