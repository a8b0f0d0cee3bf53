#include <doctest/doctest.h>

#include "adapters/qt/look/visible_outlines.h"
#include "adapters/qt/windows/guarded_application.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The offscreen platform tells about each window what it cannot do.
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  tessara::GuardedApplication application(argc, argv);
  tessara::ShowOutlines();
  return doctest::Context(argc, argv).run();
}
