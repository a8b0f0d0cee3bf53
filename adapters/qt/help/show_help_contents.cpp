#include "adapters/qt/help/show_help_contents.h"

#include <QCoreApplication>
#include <QPointer>
#include <type_traits>
#include <utility>

#include "adapters/qt/devices/help_loader.h"
#include "adapters/qt/help/chm_file.h"
#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_viewer.h"

namespace tessara {

namespace {

/// Null once the window has been closed.
QPointer<HelpViewer>& Viewer() {
  static QPointer<HelpViewer> viewer;
  return viewer;
}

void MakeViewer(const QString& path) {
  auto file = ChmFile::Open(path);
  if (file == nullptr || !file->Read(ReadHelpBook(*file).firstPage)) return;
  Viewer() = new HelpViewer(std::move(file));
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, Viewer(),
                   [] { delete Viewer(); });
}

}  // namespace

void ShowHelpContents(const QString& path) {
  if (Viewer() == nullptr) MakeViewer(path);
  if (Viewer() != nullptr) Viewer()->BringForward();
}

}  // namespace tessara

extern "C" Q_DECL_EXPORT void tessara_show_help_contents(const QString& path) {
  tessara::ShowHelpContents(path);
}

static_assert(std::is_same_v<decltype(&tessara_show_help_contents), tessara::ShowHelpFile>);
