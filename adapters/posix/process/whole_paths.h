#pragma once

namespace tessara {

// To be called before there are threads, and before anything looks at the environment.

/// Takes out of PATH what depends on where the program was started: its empty and its relative
/// elements. Where none is left, or there is no PATH, it becomes the system's own. So no program
/// that is started from here on is one that lies by chance, or by intent, in the current folder.
void KeepWholePathsOnly();

/// Unsets each variable of the XDG base directories that holds a relative path: it counts as
/// missing, for the program, its libraries and the desktop's tools that it starts.
void ForgetRelativeFolders();

}  // namespace tessara
