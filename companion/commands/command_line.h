#pragma once

namespace tessara {

/// Runs the command that the arguments name; the exit status. Messages go to standard error.
int RunCommand(int argc, const char* const* argv);

}  // namespace tessara
