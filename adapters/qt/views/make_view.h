#pragma once

#include "adapters/qt/views/control_view.h"

namespace tessara {

/// The view of a control of any kind, its widget a child of `parent` and in line with the control.
[[nodiscard]] ControlView* MakeView(Control& control, QWidget& parent, const ViewContext& context);

}  // namespace tessara
