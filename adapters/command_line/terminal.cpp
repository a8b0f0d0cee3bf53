#include "adapters/command_line/terminal.h"

#include <unistd.h>

namespace tessara {

bool ErrorsGoToTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

}  // namespace tessara
