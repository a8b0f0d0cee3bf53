#pragma once

namespace tessara {

/// True where standard error goes to a terminal.
[[nodiscard]] bool ErrorsGoToTerminal();

}  // namespace tessara
