#pragma once

#include "forms/window_system.h"

namespace tessara {

/// The form whose menus the frame shows: the child in front where it has some and takes input, else
/// the frame.
[[nodiscard]] Form* MenuBarForm(const WindowSystem& windows);

}  // namespace tessara
