#pragma once

#include <QColor>
#include <QPalette>

#include "forms/look.h"

namespace tessara {

/// The colour in the user's palette; `own` is what a control has by itself.
[[nodiscard]] QColor ColorIn(const QPalette& palette, const Color& color,
                             const QColor& own = QColor());

}  // namespace tessara
