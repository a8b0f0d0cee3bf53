#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

#include "adapters/qt/look/visible_outlines.h"
#include "tests/random_user/session.h"

namespace tessara::test {
namespace {

/// Steps are told at once: a program that breaks down tells no more.
void Tell(const std::string& step) {
  static int number = 0;
  const bool counts = !step.starts_with("--");
  std::printf("%5d %s\n", counts ? ++number : number, step.c_str());
  std::fflush(stdout);
}

/// One run of the program after the other, until all steps are taken.
int RunRandomUser(std::uint32_t seed, int steps) {
  Dice dice(seed);
  while (steps > 0) {
    Session session(dice, steps, Tell);
    session.Run();
    steps = session.StepsLeft();
    if (!session.Fault().empty()) {
      std::printf("seed %u: %s\n", seed, session.Fault().c_str());
      return 1;
    }
  }
  return 0;
}

}  // namespace
}  // namespace tessara::test

int main(int argc, char** argv) {
  // With this event loop the program waits only where nothing is left to be done.
  qputenv("QT_NO_GLIB", "1");
  // Qt leaves behind what it has asked a desktop portal and got no answer to.
  qputenv("QT_NO_XDG_DESKTOP_PORTAL", "1");
  QApplication application(argc, argv);
  tessara::ShowOutlines();
  QCommandLineParser options;
  options.addOption({QStringLiteral("seed"), QStringLiteral("Which steps."), QStringLiteral("N")});
  options.addOption({QStringLiteral("steps"), QStringLiteral("How many."), QStringLiteral("M"),
                     QStringLiteral("250")});
  options.process(application);
  return tessara::test::RunRandomUser(options.value(QStringLiteral("seed")).toUInt(),
                                      options.value(QStringLiteral("steps")).toInt());
}
