#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "machine/clock.h"

namespace tessara {

/// What the command line asks of a conversion.
struct ConvertOptions {
  std::vector<std::string> inputs;
  std::string output;
  std::string from;  ///< name of the format; empty where the endings tell
  std::string to;
  bool ankiComments = false;
  bool strict = false;  ///< nothing is written where something would be lost
  bool force = false;   ///< an output that is there may be replaced
  std::optional<std::string> title;
  std::optional<std::string> author;
  std::optional<std::string> description;
};

/// Reads the inputs into one deck and writes it to the output. The exit status. Raises Refused, and
/// std::system_error for an output that can't be written.
int Convert(const ConvertOptions& options, const CodePage& codePage, const Date& today);

}  // namespace tessara
