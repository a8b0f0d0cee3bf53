#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "tests/desktop/program_on_screen.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("A program that an error has ended is taken down with its windows on screen") {
  ProgramOnScreen desk;
  desk.folder.Write("birds.tsr", DeckBytes(3));
  desk.Start(u"birds.tsr");
  desk.AnswerByKey(Qt::Key_Return);
  desk.program.Windows().Run([] { throw RunTimeError(ErrorNumber::kSubscriptOutOfRange); });
  CHECK(desk.TakeAsked() ==
        std::vector<std::string>{"Run-time error '9':\n\nSubscript out of range"});
  CHECK(desk.program.Windows().ExitStatus() == 1);
  CHECK(ProgramOnScreen::Of("NoteletCtl1").isVisible());
}
