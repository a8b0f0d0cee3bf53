#pragma once

#include "deck/app_context.h"
#include "machine/dialogs.h"

namespace tessara {

/// The filter of every dialog for deck files.
inline constexpr TextView kDeckFilter = u"Study Cards|*.tsr";

/// Asks for a path, starting in the folder that DialogFolder tells. A path to save to is one at
/// which a file can be made. Empty on a cancel. Sets the mouse pointer back to the default.
[[nodiscard]] Text AskFileName(FileDialogMode mode, TextView filter, AppContext& app);

/// True where a dialog for deck files gave no answer: empty text or the bare pattern.
[[nodiscard]] bool NoAnswer(TextView path);

}  // namespace tessara
