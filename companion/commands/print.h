#pragma once

#include <string>

#include "base/code_page.h"

namespace tessara {

/// What `print` is asked for.
struct PrintOptions {
  std::string file;
  std::string output;
  std::string from;   ///< name of the format; empty where the ending tells
  std::string cards;  ///< "1-20,25"; empty for all
  bool flip = false;
  bool listing = false;
  bool force = false;
};

/// Prints a deck of at most 200 cards to a PDF file by the program's own print job, which lies
/// beside this one. The exit status. Raises Refused.
int PrintDeck(const PrintOptions& options, const CodePage& codePage);

}  // namespace tessara
