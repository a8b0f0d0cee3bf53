#pragma once

#include <cstdint>

#include "base/text.h"
#include "machine/print_surface.h"

namespace tessara {

/// Writes the text over as many lines as it needs, broken at blanks, on a new page where it
/// would come near the bottom. `lastY` is the position after the last text written, in
/// twips, and is brought up to date. Returns the empty text, for the caller to print as a line
/// of its own. Raises error 5 for a run without a blank that is wider than the page.
Text PrintWrapped(const Text& text, PrintSurface& surface, std::int16_t& lastY);

}  // namespace tessara
