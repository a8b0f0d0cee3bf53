#pragma once

#include "base/text.h"

class QString;

namespace tessara {

/// The help module's one function, by the name that it has in the file.
using ShowHelpFile = void (*)(const QString& path);
inline constexpr const char* kShowHelpFile = "tessara_show_help_contents";

/// Shows a compiled help file with its table of contents. The viewer lies in a loadable module in
/// the folder, loaded at the first call, so that a start pays nothing for it. A missing module and
/// a missing or damaged file are silent.
void ShowHelpWithModule(const Text& folder, const Text& path);

}  // namespace tessara
