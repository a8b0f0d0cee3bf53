#include "adapters/qt/text/dropped_file.h"

#include <QFileInfo>
#include <QUrl>
#include <algorithm>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

bool HoldsFiles(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

std::optional<Text> OneFileIn(const QMimeData& dragged) {
  const QList<QUrl> urls = dragged.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
  const QString path = urls.front().toLocalFile();
  return QFileInfo(path).isFile() ? std::optional(FromQString(path)) : std::nullopt;
}

}  // namespace tessara
