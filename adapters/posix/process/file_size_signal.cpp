#include "adapters/posix/process/file_size_signal.h"

#include <csignal>

namespace tessara {

namespace {

/// The write that caused the signal fails by itself.
void DoNothing(int /*signal*/) {}

}  // namespace

void SurviveFileSizeLimit() {
  // Caught, not ignored: a program that is started inherits what is ignored.
  std::signal(SIGXFSZ, DoNothing);
}

}  // namespace tessara
