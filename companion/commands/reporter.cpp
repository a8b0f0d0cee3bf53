#include "companion/commands/reporter.h"

namespace tessara {

void Reporter::Tell(const Place& place, const std::string& what) {
  hasLosses_ = true;
  Say(MessageAt(place, what));
}

void Reporter::Say(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
}

}  // namespace tessara
