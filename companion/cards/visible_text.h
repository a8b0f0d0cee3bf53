#pragma once

#include <string>

#include "base/text.h"

namespace tessara {

/// The text as well-formed UTF-8 on one line: control characters, line breaks and marks that turn
/// the direction of writing stand as "\n", "\t" or their code, a backslash as two. "Oslo", a line
/// break and "a\b" become "Oslo\na\\b".
[[nodiscard]] std::string VisibleText(TextView text);

}  // namespace tessara
