#pragma once

#include "base/text.h"

namespace tessara {

/// The text with every line break, lone carriage returns and line feeds included, as CR LF.
[[nodiscard]] Text WithLineBreaks(TextView text);

}  // namespace tessara
