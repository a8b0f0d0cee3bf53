#pragma once

#include <QImage>
#include <QString>

namespace tessara {

/// A null image where the file is none, or no PNG (ISO/IEC 15948). Qt's own reader, asked for its
/// first picture, loads its plug-ins of all other formats.
[[nodiscard]] QImage ReadPng(const QString& path);

}  // namespace tessara
