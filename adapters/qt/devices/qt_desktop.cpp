#include "adapters/qt/devices/qt_desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

constexpr int kNoProgram = 31;

/// A link names its kind: "mailto:". One letter is a drive, not a kind.
bool IsLink(const QString& target) {
  static const QRegularExpression kind(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
  return kind.match(target).hasMatch();
}

/// In pixels of the program as they are where they are smallest: the frame can come to any screen,
/// and the desktop's font can get smaller.
QSize LargestScreen() {
  QSize largest;
  for (const QScreen* screen : QGuiApplication::screens())
    largest = largest.expandedTo(screen->size());
  return largest;
}

}  // namespace

QtDesktop::QtDesktop(HelpViewer showHelp, Notifier notify)
    : showHelp_(std::move(showHelp)), notify_(std::move(notify)) {}

bool QtDesktop::PreviousInstance() {
  return !lock_.Acquire();
}

int QtDesktop::Open(const Text& target) {
  const QString name = ToQString(target);
  const bool link = IsLink(name);
  if (!link && !QFileInfo::exists(name)) return kOpenFileNotFound;
  const QUrl url = link ? QUrl(name) : QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath());
  return QDesktopServices::openUrl(url) ? kOpenSucceeded : kNoProgram;
}

void QtDesktop::ShowHelp(const Text& path) {
  if (showHelp_ && QFileInfo::exists(ToQString(path))) showHelp_(path);
}

void QtDesktop::Notify(const Text& title, const Text& text) {
  if (notify_) notify_(title, text);
}

Text QtDesktop::DocumentsFolder() const {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return FromQString(QFileInfo(folder).isDir() ? folder : QDir::homePath());
}

void QtDesktop::SetMousePointer(MousePointer pointer) {
  const bool busy = QApplication::overrideCursor() != nullptr;
  if (pointer == MousePointer::kHourglass && !busy) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == MousePointer::kDefault && busy) QApplication::restoreOverrideCursor();
}

void QtDesktop::Yield() {
  QCoreApplication::processEvents();
}

int QtDesktop::ScreenWidth() const {
  return LargestScreen().width();
}

int QtDesktop::ScreenHeight() const {
  return LargestScreen().height();
}

}  // namespace tessara
