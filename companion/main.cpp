// Puts the pieces together: the command line, the machine, the commands.

#include "adapters/posix/process/prepare_process.h"
#include "companion/commands/command_line.h"

int main(int argc, char** argv) {
  tessara::PrepareProcess();
  return tessara::RunCommand(argc, argv);
}
