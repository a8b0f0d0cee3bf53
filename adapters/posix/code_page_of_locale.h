#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"

namespace tessara {

/// Name of the single-byte code page of a locale's language: "WINDOWS-1250" of "cs_CZ.UTF-8".
/// The western one where nothing is known, and for languages whose code pages have two bytes.
[[nodiscard]] std::string CodePageNameOf(std::string_view locale);

/// The code page of that name as the system converts it. The western one where the system does
/// not know the name.
[[nodiscard]] CodePage CodePageNamed(const std::string& name);

/// The code page of the user's locale, as the environment tells it.
[[nodiscard]] CodePage CodePageOfLocale();

}  // namespace tessara
