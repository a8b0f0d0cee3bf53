#pragma once

#include <string>
#include <vector>

#include "base/code_page.h"

namespace tessara {

/// Exit statuses; of several files the highest.
enum CheckStatus : int { kClean = 0, kHasFindings = 1, kUnreadable = 2 };

/// Writes all that is wrong with decks and import texts to standard output; `from` names their
/// format where it is not empty. A CheckStatus.
int Check(const std::vector<std::string>& files, const std::string& from, const CodePage& codePage);

}  // namespace tessara
