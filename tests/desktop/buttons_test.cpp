#include <QPushButton>
#include <doctest/doctest.h>

#include "tests/desktop/desk.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("A click on a button runs its form's click") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  QTest::mouseClick(&Desk::Of("Command2"), Qt::LeftButton);
  CHECK(form.log.Take() == "lost focus, delete");
  if (qEnvironmentVariableIsSet("PICTURE")) Desk::Top("MDIForm1")->grab().save("/tmp/desk.png");
}
