#pragma once

#include <string>

#include "base/text.h"

namespace tessara {

/// The folder with the programs of the installed spreadsheet server; empty where there is none. It
/// is the one that "soffice" on the search path leads to, else one of the usual ones, those below
/// /opt last. Nothing is started.
[[nodiscard]] std::string OfficeProgramFolder();

/// Raises error 432 where there is no such file, 440 where it can't be read or is no spreadsheet
/// in the Excel 97 format.
void CheckTemplate(const Text& path);

}  // namespace tessara
