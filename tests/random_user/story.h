#pragma once

#include <string>

namespace tessara::test {

/// What has been asked and answered in a run of the program, as far as an end or a loss depends on
/// it.
struct Story {
  std::string lastBox;           ///< text of the last message box
  std::string lastFile;          ///< name of the file that was chosen last
  bool imports = false;          ///< it is a text: what comes into the table lies in there too
  bool importBroke = false;      ///< an import has met an unforeseen error
  bool choosesBackDrop = false;  ///< the set-up window is there
};

}  // namespace tessara::test
