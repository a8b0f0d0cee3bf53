#pragma once

#include "forms/app_frame.h"
#include "forms/window.h"

namespace tessara {

/// Loads the window, gives it its outer size in twips, height first, centres it in the frame's
/// client area at the size that it then has, and shows it. A minimised or maximised window is
/// set to normal and the step repeated; every other error ends the routine quietly.
void PlaceInFrame(WindowSlot& xForm, int xHeight, int xWidth, const AppFrame& frame);
void PlaceInFrame(Form& xForm, int xHeight, int xWidth, const AppFrame& frame);

/// Corrects one side of a window that holds its size: the height where it differs, else the
/// width. The change of the height runs Form_Resize, and with it the correction of the width.
void HoldWindowSize(int xHeight, int xWidth, Form& xForm);

}  // namespace tessara
