#pragma once

#include "forms/window.h"

namespace tessara {

/// Loads the window, gives it its outer size in twips, height first, centres it in the frame's
/// client area at the size that it then has, and shows it. A minimised or maximised window is
/// set to normal and the step repeated; every other error ends the routine quietly.
void PlaceInFrame(FormSlot& form, int height, int width);
void PlaceInFrame(Form& form, int height, int width);

/// Corrects one side of a window that holds its size: the height where it differs, else the
/// width. The change of the height runs OnResize, and with it the correction of the width.
void HoldWindowSize(int height, int width, Form& form);

}  // namespace tessara
