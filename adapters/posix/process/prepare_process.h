#pragma once

namespace tessara {

/// What each program does before anything else, while there are no threads: it takes the user's
/// locale, lets a write that has no reader any more, or no room, fail as a write and not as the end
/// of the process, and forgets relative paths of the environment.
void PrepareProcess();

}  // namespace tessara
