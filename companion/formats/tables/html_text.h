#pragma once

#include "base/text.h"

namespace tessara {

/// The text of a piece of HTML: tags go, "<br>" and the beginning of a block become line breaks,
/// character references are resolved; one that is unknown stays.
[[nodiscard]] Text TextOfHtml(TextView html);

}  // namespace tessara
