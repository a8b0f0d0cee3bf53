#pragma once

namespace tessara {

/// Runs the command that the arguments name. An ExitStatus, or `check`'s CheckStatus; wrong
/// arguments count as what it refuses or can't read. Messages go to standard error. Raises what
/// writing the output raises.
int RunCommand(int argc, const char* const* argv);

}  // namespace tessara
