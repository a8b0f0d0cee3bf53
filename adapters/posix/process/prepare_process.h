#pragma once

namespace tessara {

/// What each program does before anything else, while there are no threads: it takes the user's
/// locale, lets a write that has no reader any more, or no room, fail as a write and not as the end
/// of the process, forgets relative paths of the environment, and can wait for the programs that it
/// starts, whatever its own starter ignores.
void PrepareProcess();

// Its parts.

/// Closed standard files stay closed to those who use them, but no other file takes their numbers:
/// what is said on one would go into it.
void OccupyStandardFiles();

/// From here on a file that grows past the user's limit is an error of the write, like a full disk,
/// and not the end of the program. Programs that it starts have the system's default.
void SurviveFileSizeLimit();

/// Takes out of PATH what depends on where the program was started: its empty and its relative
/// elements. Where none is left, or there is no PATH, it becomes the system's own. So no program
/// that is started from here on is one that lies by chance, or by intent, in the current folder.
void KeepWholePathsOnly();

/// Unsets each variable of the XDG base directories, and of the temporary folder, that holds a
/// relative path: it counts as missing, for the program, its libraries and the desktop's tools that
/// it starts.
void ForgetRelativeFolders();

}  // namespace tessara
