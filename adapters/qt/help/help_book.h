#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include "adapters/qt/help/site_map.h"

namespace tessara {

class ChmFile;

/// What a compiled help file says about itself.
struct HelpBook {
  QString title;
  QString firstPage;  ///< the one named, or else the first of the contents
  QList<SiteMapEntry> contents;
  QList<SiteMapEntry> index;
};

/// Empty where the file does not say, or says it in a way that cannot be read.
[[nodiscard]] HelpBook ReadHelpBook(const ChmFile& file);

/// The address of a page or picture: of a scheme of its own, so that it means an entry of the help
/// file and nothing else on this machine or another.
[[nodiscard]] QUrl HelpAddress(const QString& page);
[[nodiscard]] bool IsHelpAddress(const QUrl& address);

}  // namespace tessara
