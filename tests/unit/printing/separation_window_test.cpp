#include "printing/separation_window.h"

#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "tests/support/test_fixture.h"

namespace tessara {
namespace {

struct Book {
  test::TestFixture fixture;
  WindowSlot<SeparationWindow> slot{
      fixture.windows, [this] { return std::make_unique<SeparationWindow>(fixture.windows); }};
  Window<SeparationWindow> window{slot};

  SeparationWindow& Open() {
    window->Show();
    return window.Loaded();
  }
};

TEST_CASE("the picture book begins at step 1, again after it was closed") {
  Book book;
  for (int round = 0; round < 2; ++round) {
    SeparationWindow& window = book.Open();
    CHECK(window.currentStep == 1);
    CHECK(window.text.Caption() ==
          u"1. This is a completed card sheet printed from Tessara 1.0. You will now begin folding "
          u"and separating this sheet into individual cards.");
    CHECK(window.picture.PictureOf() == Picture{"steps/1.png", 360, 360});
    window.forward.Press();
    window.close.Press();
    CHECK_FALSE(book.window.IsLoaded());
  }
}

TEST_CASE("the arrows go from step 1 to 6 and back and stop at the ends") {
  const TextView beginnings[] = {u"1. This is", u"2. Fold the", u"3. Begin",
                                 u"4. Flip",    u"5. Tear",     u"6. Fold each"};
  Book book;
  SeparationWindow& window = book.Open();
  const auto checkStep = [&window, &beginnings](int step) {
    CAPTURE(step);
    CHECK(window.currentStep == step);
    CHECK(window.text.Caption().starts_with(beginnings[step - 1]));
    CHECK(window.picture.PictureOf().file == "steps/" + std::to_string(step) + ".png");
    CHECK(window.back.Enabled() == (step > 1));
    CHECK(window.forward.Enabled() == (step < 6));
  };
  for (int step = 1; step <= 6; ++step) {
    checkStep(step);
    window.forward.Press();
  }
  for (int step = 6; step >= 1; --step) {
    checkStep(step);
    window.back.Press();
  }
  checkStep(1);
}

TEST_CASE("step 5 keeps the blank behind its text") {
  Book book;
  SeparationWindow& window = book.Open();
  window.ShowStep(5);
  CHECK(window.text.Caption() == u"5. Tear the sheet into 4 strips containing 2 cards each. ");
}

TEST_CASE("a step that there is no picture of raises the image list's error") {
  Book book;
  SeparationWindow& window = book.Open();
  CHECK_THROWS_AS(window.ShowStep(0), RunTimeError);
  CHECK_THROWS_AS(window.ShowStep(7), RunTimeError);
}

TEST_CASE("the picture and its text lie in the picture box, the text above the picture") {
  Book book;
  SeparationWindow& window = book.Open();
  CHECK(window.picture.Container() == &window.page);
  CHECK(window.text.Container() == &window.page);
  CHECK(window.picture.BoundsOf() == Bounds{720, 600, 5400, 5400});
  CHECK(window.Caption() == u"Separating The Cards");
}

TEST_CASE("the command shows the picture book modally") {
  Book book;
  std::string shown;
  book.fixture.renderer.whileModal = [&shown](Form& form) {
    shown = form.Name();
    form.Unload();
  };
  ShowSeparationSteps(book.window);
  CHECK(shown == "frmInstruct");
  CHECK_FALSE(book.window.IsLoaded());
}

}  // namespace
}  // namespace tessara
