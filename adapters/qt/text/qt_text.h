#pragma once

#include <QString>

#include "base/text.h"

namespace tessara {

[[nodiscard]] QString ToQString(TextView text);
[[nodiscard]] Text FromQString(const QString& text);

/// Text of several lines for a label or a message box: CR LF as the line feed that Qt takes.
[[nodiscard]] QString LinesForQt(TextView text);
/// Text for one line of a list or a combo box: line breaks as blanks.
[[nodiscard]] QString OneLineForQt(TextView text);
/// A window title that Qt shows as it stands: "[*]" has a meaning of its own there.
[[nodiscard]] QString TitleForQt(TextView text);

}  // namespace tessara
