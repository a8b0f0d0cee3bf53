#pragma once

#include <string>

#include "tests/random_user/story.h"

namespace tessara::test {

/// Whether a program that has ended with an error report had to, by what had been done to it.
/// `report` is the text of the report box.
[[nodiscard]] bool IsRequiredEnd(const std::string& report, const Story& story);

}  // namespace tessara::test
