#include "companion/commands/reporter.h"

#include "adapters/command_line/terminal.h"

namespace tessara {

void Reporter::Tell(const Place& place, const std::string& what) {
  hasLosses_ = true;
  Say(MessageAt(place, what));
}

void Reporter::Say(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
}

void Reporter::SayProgress(const std::string& message) {
  if (ErrorsGoToTerminal()) Say(message);
}

}  // namespace tessara
