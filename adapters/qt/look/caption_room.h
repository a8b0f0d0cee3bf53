#pragma once

#include "forms/controls/control.h"

namespace tessara {

/// How much of the control's width controls in front of it cover, in twips from its right edge, at
/// half its height: a caption that goes on would be cut there.
[[nodiscard]] int CoveredWidth(const Control& control);

/// How much room is free below the control, in twips, up to 45: the ink of a high font may hang
/// down there where nothing is in its way.
[[nodiscard]] int FreeHeightBelow(const Control& control);

}  // namespace tessara
