#pragma once

#include <string>
#include <vector>

#include "base/code_page.h"

namespace tessara {

/// Writes all that is wrong with decks and import texts to standard output; `from` names their
/// format where it is not empty. A CheckStatus.
int Check(const std::vector<std::string>& files, const std::string& from, const CodePage& codePage);

}  // namespace tessara
