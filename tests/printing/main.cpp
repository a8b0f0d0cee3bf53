#include <QApplication>
#include <doctest/doctest.h>

#include "adapters/posix/process/prepare_process.h"
#include "tests/printing/print_server.h"

int main(int argc, char** argv) {
  // As the program does: a server that dies leaves a pipe that nobody reads.
  tessara::PrepareProcess();
  // Before anything asks for printers: nobody's real ones are to be seen.
  const tessara::test::PrintServer& server = tessara::test::PrintServer::Instance();
  server.BecomeTheOnlyOne();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  const QApplication application(argc, argv);
  return doctest::Context(argc, argv).run();
}
