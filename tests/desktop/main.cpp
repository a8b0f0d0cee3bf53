#define DOCTEST_CONFIG_IMPLEMENT
#include <QApplication>
#include <doctest/doctest.h>

#include "adapters/qt/look/visible_outlines.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The offscreen platform tells about each window what it cannot do.
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  QApplication application(argc, argv);
  tessara::ShowOutlines();
  return doctest::Context(argc, argv).run();
}
