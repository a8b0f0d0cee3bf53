// Puts the pieces together: the command line, the machine, the commands.

#include <clocale>
#include <csignal>

#include "adapters/posix/file_size_signal.h"
#include "companion/commands/command_line.h"

int main(int argc, char** argv) {
  std::setlocale(LC_ALL, "");
  // A reader that goes away is an error of the write.
  std::signal(SIGPIPE, SIG_IGN);
  tessara::SurviveFileSizeLimit();
  return tessara::RunCommand(argc, argv);
}
