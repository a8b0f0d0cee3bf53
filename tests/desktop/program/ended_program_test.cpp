#include <QTimer>
#include <doctest/doctest.h>
#include <functional>
#include <new>
#include <system_error>

#include "adapters/qt/windows/guarded_application.h"
#include "base/run_time_error.h"
#include "tests/desktop/support/fixture.h"
#include "tests/desktop/support/program_on_screen.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

/// A fixture under the guard of the application.
struct GuardedFixture : Fixture {
  GuardedFixture() { static_cast<GuardedApplication&>(*qApp).SetWindows(windows); }

  [[nodiscard]] bool Ends() {
    return QTest::qWaitFor([this] { return windows.ExitStatus().has_value(); });
  }
  [[nodiscard]] std::vector<std::string> Told() const {
    std::vector<std::string> told;
    for (const auto& box : messages.shown) told.push_back(ToUtf8(box.text));
    return told;
  }
};

const std::vector<std::string> kOutOfMemory{"Run-time error '7':\r\n\r\nOut of memory"};

}  // namespace

TEST_CASE("An error in painting is told once, as one in an event is, and ends the program") {
  struct Case {
    std::function<void()> fails;
    const char* told;
  };
  const Case cases[] = {
      {[] { throw std::bad_alloc(); }, "Run-time error '7':\r\n\r\nOut of memory"},
      {[] { throw RunTimeError(ErrorNumber::kOverflow); }, "Run-time error '6':\r\n\r\nOverflow"},
      {[] { throw std::system_error(ENOSPC, std::generic_category()); },
       "Run-time error '61':\r\n\r\nDisk full"},
  };
  for (const Case& each : cases) {
    GuardedFixture fixture;
    fixture.ShowChild().painting.whenPainted = each.fails;
    // Painted again while the box is there.
    fixture.messages.whileShown = [](const FakeMessages::Shown&) {
      Fixture::Of("Painting1").repaint();
    };
    Fixture::Of("Painting1").repaint();
    CHECK(fixture.Told().empty());
    CHECK(fixture.Ends());
    CHECK(fixture.Told() == std::vector<std::string>{each.told});
    CHECK(fixture.windows.ExitStatus() == 1);
  }
}

TEST_CASE("An error in a timer's work ends the program too") {
  GuardedFixture fixture;
  QTimer::singleShot(0, qApp, [] { throw std::bad_alloc(); });
  CHECK(fixture.Ends());
  CHECK(fixture.Told() == kOutOfMemory);
}

TEST_CASE("An error in painting ends the program from inside a dialog") {
  GuardedFixture fixture;
  bool left = true;
  QTimer::singleShot(0, qApp, [&fixture] {
    fixture.dialog->painting.whenPainted = [] { throw std::bad_alloc(); };
    Fixture::Of("Painting1", "frmDialog").repaint();
  });
  fixture.windows.Run([&] {
    fixture.dialog->Show(Modality::kModal);
    left = false;
  });
  CHECK(fixture.Told() == kOutOfMemory);
  CHECK(fixture.windows.ExitStatus() == 1);
  CHECK(left);
}

TEST_CASE("A program that an error has ended is taken down with its windows on screen") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(3));
  fixture.Start(u"birds.tsr");
  fixture.AnswerByKey(Qt::Key_Return);
  fixture.program.Windows().Run([] { throw RunTimeError(ErrorNumber::kSubscriptOutOfRange); });
  CHECK(fixture.TakeAsked() ==
        std::vector<std::string>{"Run-time error '9':\n\nSubscript out of range"});
  CHECK(fixture.program.Windows().ExitStatus() == 1);
  CHECK(ProgramOnScreen::Of("NoteletCtl1").isVisible());
}
