#pragma once

#include <QColor>
#include <QPalette>

#include "forms/controls/control.h"
#include "forms/look.h"

namespace tessara {

/// The colour in the user's palette; `own` is what a control has by itself.
[[nodiscard]] QColor ColorIn(const QPalette& palette, const Color& color,
                             const QColor& own = QColor());

/// True for an enabled control in a disabled container or window: the user is kept out, and yet it
/// looks as it did, so that a coloured mark stays to be seen.
[[nodiscard]] bool IsKeptOut(const Control& control);

/// True where the control cannot simply have its container's palette.
[[nodiscard]] bool NeedsPalette(const Control& control);

/// The desktop's palette with the colours that the control has of its own, and those that its state
/// asks for.
[[nodiscard]] QPalette PaletteOf(const Control& control);

}  // namespace tessara
