#include "adapters/qt/devices/file_dialog.h"

#include <QDir>
#include <QFileInfo>
#include <QSizeGrip>
#include <QSplitter>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

#include "adapters/qt/devices/qt_message_boxes.h"
#include "adapters/qt/look/accessible_role.h"
#include "adapters/qt/text/qt_text.h"
#include "machine/message_box.h"

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

/// The folders of the user that the dialog offers at its side.
QList<QUrl> Places() {
  QList<QUrl> places;
  for (const auto kind : {QStandardPaths::HomeLocation, QStandardPaths::DocumentsLocation,
                          QStandardPaths::DesktopLocation}) {
    const QString folder = QStandardPaths::writableLocation(kind);
    const QUrl place = QUrl::fromLocalFile(QDir::cleanPath(folder));
    if (QFileInfo(folder).isDir() && !places.contains(place)) places += place;
  }
  return places;
}

}  // namespace

FileDialog::FileDialog(QWidget* parent, const FileDialogRequest& request)
    : QFileDialog(parent), request_(request) {
  SetMode();
  SetFilters();
  setSidebarUrls(Places());
  setDirectory(ToQString(request.initialFolder));
  NameParts();
}

void FileDialog::SetMode() {
  const bool saves = request_.mode == FileDialogMode::kSave;
  const bool mustExist = (request_.flags & kFileMustExist) != 0;
  setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  setFileMode(mustExist && !saves ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  setOption(QFileDialog::DontConfirmOverwrite);
}

void FileDialog::SetFilters() {
  const QStringList filters = NameFilters(request_.filter);
  setNameFilters(filters);
  const qsizetype chosen = request_.filterIndex - 1;
  if (chosen >= 0 && chosen < filters.size()) selectNameFilter(filters[chosen]);
}

/// What Qt leaves nameless in a dialog of its own; the desktop's has none of it.
void FileDialog::NameParts() {
  if (IsOfDesktop()) return;
  auto* panes = findChild<QSplitter*>();
  panes->setAccessibleName(QStringLiteral("Places and files"));
  WithRole(*panes->handle(1), QAccessible::Grip).setAccessibleName(QStringLiteral("Divider"));
  auto* corner = findChild<QSizeGrip*>();
  if (corner != nullptr) {
    WithRole(*corner, QAccessible::Grip).setAccessibleName(QStringLiteral("Size of the dialog"));
  }
}

bool FileDialog::IsOfDesktop() const {
  return findChild<QSplitter*>() == nullptr;
}

bool FileDialog::Ask() {
  exec();
  if (refusal_.empty()) return true;
  hide();
  TellRefusal();
  return false;
}

Text FileDialog::Answer() const {
  const QStringList files = selectedFiles();
  return result() == Accepted && !files.isEmpty() ? FromQString(files.front()) : Text();
}

/// A folder is no answer yet: the dialog goes into it.
Text FileDialog::Refusal() const {
  const QStringList files = selectedFiles();
  const bool answers = !files.isEmpty() && !QFileInfo(files.front()).isDir();
  return answers && request_.refusal ? request_.refusal(FromQString(files.front())) : Text();
}

void FileDialog::accept() {
  refusal_ = Refusal();
  if (refusal_.empty()) return QFileDialog::accept();
  // The desktop's own is closing just now.
  if (!IsOfDesktop()) TellRefusal();
}

void FileDialog::done(int result) {
  refusal_.clear();
  QFileDialog::done(result);
}

void FileDialog::TellRefusal() {
  ShowMessageBox(std::exchange(refusal_, {}), kExclamationIcon, Text(kProgramName));
}

}  // namespace tessara
