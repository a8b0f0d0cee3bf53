#pragma once

#include <QPalette>

#include "forms/controls/control.h"

namespace tessara {

/// True for an enabled control in a disabled container or window: the user is kept out, and yet it
/// looks as it did, so that a coloured mark stays to be seen.
[[nodiscard]] bool IsKeptOut(const Control& control);

/// True where the control cannot simply have its container's palette.
[[nodiscard]] bool NeedsPalette(const Control& control);

[[nodiscard]] QPalette PaletteOf(const Control& control);

}  // namespace tessara
