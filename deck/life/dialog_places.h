#pragma once

#include "deck/program_state.h"
#include "machine/file_system.h"
#include "machine/machine.h"

namespace tessara {

/// Why no file can be saved as `path`, in words for the user; empty where one can.
[[nodiscard]] Text SaveRefusal(const Text& path, FileSystem& files);

/// The folder that a file dialog begins in: the program's. Where the user can't write there, the
/// one used last, or the user's documents before the first file was chosen.
[[nodiscard]] Text DialogFolder(const Machine& machine, const ProgramState& state);

/// The folder of the file, which has been chosen in a dialog, is the one used last.
void NoteFolderOf(const Text& path, ProgramState& state);

}  // namespace tessara
