#pragma once

#include <QMimeData>
#include <optional>

#include "base/text.h"

namespace tessara {

/// True where files are among what is dragged.
[[nodiscard]] bool HoldsFiles(const QMimeData& dragged);

/// The path of the one file that is dragged; nothing where it is none, several, or a folder.
[[nodiscard]] std::optional<Text> OneFileIn(const QMimeData& dragged);

}  // namespace tessara
