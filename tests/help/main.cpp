#include <QApplication>
#include <doctest/doctest.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  return doctest::Context(argc, argv).run();
}
