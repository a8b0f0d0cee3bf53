#pragma once

#include <QList>
#include <QString>

namespace tessara {

/// An entry of a table of contents or an index.
struct SiteMapEntry {
  QString name;
  QString page;   ///< empty for a heading without a page
  int depth = 0;  ///< 0 for the outermost entries
};

/// The entries of a contents or index file, in its order. Takes what it can read and skips the
/// rest: such files are HTML in name only.
[[nodiscard]] QList<SiteMapEntry> ParseSiteMap(const QString& text);

}  // namespace tessara
