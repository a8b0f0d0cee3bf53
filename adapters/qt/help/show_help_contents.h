#pragma once

#include <QString>

namespace tessara {

/// Shows a compiled help file with its table of contents. The window of the file that is already
/// on show comes forward; a missing or damaged file does nothing.
void ShowHelpContents(const QString& path);

}  // namespace tessara
