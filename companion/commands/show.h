#pragma once

#include <string>

#include "base/code_page.h"

namespace tessara {

/// What `show` and `info` are asked for.
struct ShowOptions {
  std::string file;
  std::string from;  ///< name of the format; empty where the ending tells
  bool json = false;
  bool withCards = true;
};

/// Writes a deck to standard output, as text or as JSON. The exit status. Raises Refused.
int ShowDeck(const ShowOptions& options, const CodePage& codePage);

}  // namespace tessara
