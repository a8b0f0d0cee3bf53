#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "forms/place_in_frame.h"
#include "tests/unit/forms/test_windows.h"

namespace tessara::test {

TEST_CASE("a window loads at its first use and not before") {
  RulesFixture fixture;
  fixture.first.Instance();
  CHECK(fixture.Take().empty());
  fixture.first->SetCaption(u"used");
  CHECK(fixture.Take() == Events{"First load"});
  fixture.first->SetCaption(u"used again");
  CHECK(fixture.Take().empty());
}

TEST_CASE("a use during OnLoad does not load again") {
  RulesFixture fixture;
  fixture.prepare = [&](RulesForm& form) {
    form.onLoad = [&] { fixture.first->SetCaption(u"loading"); };
  };
  CHECK(fixture.first->Caption() == u"loading");
  CHECK(fixture.Take() == Events{"First load"});
}

TEST_CASE("only a loaded window is told of by its changes") {
  RulesFixture fixture;
  RulesForm form(fixture.windows, "unloaded", fixture.log);
  form.SetCaption(u"before");
  CHECK(fixture.renderer.changed.empty());
  fixture.first->SetCaption(u"after");
  CHECK(fixture.renderer.changed == fixture.first->Name());
}

TEST_CASE("loading alone does not bring a window on screen") {
  RulesFixture fixture;
  fixture.first.Loaded();
  CHECK_FALSE(fixture.first->Visible());
  CHECK(fixture.windows.ActiveForm() == nullptr);
}

TEST_CASE("the first show resizes and activates, a second show does neither") {
  RulesFixture fixture;
  fixture.first->Show();
  CHECK(fixture.Take() == Events{"First load", "First resize", "First activate"});
  fixture.first->Show();
  CHECK(fixture.Take().empty());
}

TEST_CASE("an assigned size that differs resizes, shown or not") {
  RulesFixture fixture;
  fixture.first.Loaded();
  fixture.Take();
  fixture.first->SetWidth(3100);
  fixture.first->SetWidth(3100);
  fixture.first->SetLeft(40);
  CHECK(fixture.Take() == Events{"First resize"});
}

TEST_CASE("the client area is the outer size less the border") {
  RulesFixture fixture;
  CHECK(fixture.first->ScaleWidth() == 3000 - 120);
  CHECK(fixture.first->ScaleHeight() == 2000 - 390);
}

TEST_CASE("a window becomes active inside the show, the hide or the unload that causes it") {
  RulesFixture fixture;
  fixture.first->Show();
  fixture.Take();
  SUBCASE("show of another") {
    fixture.second->Show();
    CHECK(fixture.Take() ==
          Events{"Second load", "Second resize", "First lost", "Second activate"});
  }
  SUBCASE("hide of the active one") {
    fixture.second->Show();
    fixture.Take();
    fixture.second->Hide();
    CHECK(fixture.Take() == Events{"First activate"});
    CHECK(fixture.windows.ActiveForm() == &fixture.first.Loaded());
  }
  SUBCASE("unload of the active one") {
    fixture.second->Show();
    fixture.Take();
    fixture.second.Unload();
    CHECK(fixture.Take() == Events{"Second unload", "First activate"});
  }
  SUBCASE("hide of one that is not active") {
    fixture.second->Show();
    fixture.Take();
    fixture.first->Hide();
    CHECK(fixture.Take().empty());
  }
  SUBCASE("the user's click on another") {
    fixture.second->Show();
    fixture.Take();
    fixture.first->UserActivate();
    CHECK(fixture.Take() == Events{"Second lost", "First activate"});
  }
}

TEST_CASE("unloading a window that is not loaded does nothing") {
  RulesFixture fixture;
  CHECK(fixture.first.Unload());
  fixture.first.Instance();
  CHECK(fixture.first.Unload());
  CHECK(fixture.Take().empty());
}

TEST_CASE("OnUnload may keep the window") {
  RulesFixture fixture;
  fixture.first->Show();
  fixture.first->onUnload = [](bool& cancel) { cancel = true; };
  CHECK_FALSE(fixture.first.Unload());
  CHECK(fixture.first->Visible());
}

TEST_CASE("a window may unload itself and run its later lines") {
  RulesFixture fixture;
  fixture.first->Show();
  bool laterLines = false;
  RulesForm& form = fixture.first.Loaded();
  form.close.onClick = [&] {
    form.Unload();
    CHECK_FALSE(fixture.first.IsLoaded());
    CHECK_FALSE(form.Visible());
    form.textBox.SetText(u"still there");
    laterLines = form.textBox.TextOf() == u"still there";
  };
  form.close.Press();
  CHECK(laterLines);
}

TEST_CASE("the next use after an unload makes a fresh window") {
  RulesFixture fixture;
  fixture.first->textBox.SetText(u"old");
  fixture.first.Unload();
  CHECK(fixture.first->textBox.TextOf().empty());
}

TEST_CASE("a window that goes with its owner runs no event and tells nobody") {
  RulesFixture fixture;
  fixture.first->Show();
  {
    WindowSlot<RulesForm> slot(fixture.windows, [&fixture] {
      return std::make_unique<RulesForm>(fixture.windows, "Third", fixture.log);
    });
    Window<RulesForm>(slot)->Show();
    CHECK(fixture.windows.ActiveForm() == &slot.Instance());
    fixture.log.clear();
    fixture.renderer.activated.clear();
  }
  CHECK(fixture.log.empty());
  CHECK(fixture.renderer.activated.empty());
  CHECK(fixture.windows.ActiveForm() == &fixture.first.Instance());
  CHECK(fixture.windows.LoadedForms().size() == 1);
}

TEST_CASE("a disabled window takes no input") {
  RulesFixture fixture;
  fixture.first->Show();
  int clicks = 0;
  fixture.first->close.onClick = [&] { ++clicks; };
  fixture.first->SetEnabled(false);
  fixture.first->close.Press();
  fixture.first->UserClose();
  CHECK_FALSE(fixture.first->UserAccelerator(u'c'));
  CHECK(clicks == 0);
  CHECK(fixture.first.IsLoaded());
}

TEST_CASE("while a modal window is up no other takes input") {
  RulesFixture fixture;
  fixture.first->Show();
  bool firstTakes = true;
  bool secondTakes = false;
  fixture.renderer.whileModal = [&](Form& modal) {
    firstTakes = fixture.first->TakesInput();
    secondTakes = modal.TakesInput();
    modal.Unload();
  };
  fixture.second->Show(Modality::kModal);
  CHECK_FALSE(firstTakes);
  CHECK(secondTakes);
  CHECK(fixture.first->TakesInput());
}

TEST_CASE("a minimised or maximised child can't be moved or sized") {
  RulesFixture fixture;
  fixture.first->SetState(WindowState::kMaximised);
  CHECK_THROWS_AS(fixture.first->SetHeight(10), RunTimeError);
  CHECK_THROWS_AS(fixture.first->SetLeft(10), RunTimeError);
}

TEST_CASE("placing in the frame sets the size, centres and shows") {
  RulesFixture fixture;
  PlaceInFrame(fixture.firstSlot, 4000, 6000);
  CHECK(fixture.first->Height() == 4000);
  CHECK(fixture.first->Width() == 6000);
  CHECK(fixture.first->Top() == (9000 - 4000) / 2);
  CHECK(fixture.first->Left() == (12000 - 6000) / 2);
  CHECK(fixture.first->Visible());
}

TEST_CASE("placing brings a minimised or maximised window back to normal") {
  for (const WindowState state : {WindowState::kMinimised, WindowState::kMaximised}) {
    RulesFixture fixture;
    fixture.first->SetState(state);
    PlaceInFrame(fixture.firstSlot, 4000, 6000);
    CHECK(fixture.first->State() == WindowState::kNormal);
    CHECK(fixture.first->Height() == 4000);
  }
}

TEST_CASE("one call holds one side of a window's size, the height first") {
  RulesFixture fixture;
  HoldWindowSize(1000, 1500, fixture.first.Loaded());
  CHECK(fixture.first->Height() == 1000);
  CHECK(fixture.first->Width() == 3000);
  HoldWindowSize(1000, 1500, fixture.first.Loaded());
  CHECK(fixture.first->Width() == 1500);
}

}  // namespace tessara::test
