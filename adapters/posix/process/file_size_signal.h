#pragma once

namespace tessara {

/// From here on a file that grows past the user's limit is an error of the write, like a full disk,
/// and not the end of the program. Programs that it starts have the system's default.
void SurviveFileSizeLimit();

}  // namespace tessara
