#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "forms/place_in_frame.h"
#include "tests/unit/forms/test_windows.h"

namespace tessara::test {

TEST_CASE("a window loads at its first use and not before") {
  RulesDesk desk;
  desk.first.Instance();
  CHECK(desk.Take().empty());
  desk.first->SetCaption(u"used");
  CHECK(desk.Take() == Events{"First load"});
  desk.first->SetCaption(u"used again");
  CHECK(desk.Take().empty());
}

TEST_CASE("a use during OnLoad does not load again") {
  RulesDesk desk;
  desk.prepare = [&](RulesForm& form) {
    form.onLoad = [&] { desk.first->SetCaption(u"loading"); };
  };
  CHECK(desk.first->Caption() == u"loading");
  CHECK(desk.Take() == Events{"First load"});
}

TEST_CASE("loading alone does not bring a window on screen") {
  RulesDesk desk;
  desk.first.Loaded();
  CHECK_FALSE(desk.first->Visible());
  CHECK(desk.windows.ActiveForm() == nullptr);
}

TEST_CASE("the first show resizes and activates, a second show does neither") {
  RulesDesk desk;
  desk.first->Show();
  CHECK(desk.Take() == Events{"First load", "First resize", "First activate"});
  desk.first->Show();
  CHECK(desk.Take().empty());
}

TEST_CASE("an assigned size that differs resizes, shown or not") {
  RulesDesk desk;
  desk.first.Loaded();
  desk.Take();
  desk.first->SetWidth(3100);
  desk.first->SetWidth(3100);
  desk.first->SetLeft(40);
  CHECK(desk.Take() == Events{"First resize"});
}

TEST_CASE("the client area is the outer size less the border") {
  RulesDesk desk;
  CHECK(desk.first->ScaleWidth() == 3000 - 120);
  CHECK(desk.first->ScaleHeight() == 2000 - 390);
}

TEST_CASE("a window becomes active inside the show, the hide or the unload that causes it") {
  RulesDesk desk;
  desk.first->Show();
  desk.Take();
  SUBCASE("show of another") {
    desk.second->Show();
    CHECK(desk.Take() == Events{"Second load", "Second resize", "First lost", "Second activate"});
  }
  SUBCASE("hide of the active one") {
    desk.second->Show();
    desk.Take();
    desk.second->Hide();
    CHECK(desk.Take() == Events{"First activate"});
    CHECK(desk.windows.ActiveForm() == &desk.first.Loaded());
  }
  SUBCASE("unload of the active one") {
    desk.second->Show();
    desk.Take();
    desk.second.Unload();
    CHECK(desk.Take() == Events{"Second unload", "First activate"});
  }
  SUBCASE("hide of one that is not active") {
    desk.second->Show();
    desk.Take();
    desk.first->Hide();
    CHECK(desk.Take().empty());
  }
  SUBCASE("the user's click on another") {
    desk.second->Show();
    desk.Take();
    desk.first->UserActivate();
    CHECK(desk.Take() == Events{"Second lost", "First activate"});
  }
}

TEST_CASE("unloading a window that is not loaded does nothing") {
  RulesDesk desk;
  CHECK(desk.first.Unload());
  desk.first.Instance();
  CHECK(desk.first.Unload());
  CHECK(desk.Take().empty());
}

TEST_CASE("OnUnload may keep the window") {
  RulesDesk desk;
  desk.first->Show();
  desk.first->onUnload = [](bool& cancel) { cancel = true; };
  CHECK_FALSE(desk.first.Unload());
  CHECK(desk.first->Visible());
}

TEST_CASE("a window may unload itself and run its later lines") {
  RulesDesk desk;
  desk.first->Show();
  bool laterLines = false;
  RulesForm& form = desk.first.Loaded();
  form.close.onClick = [&] {
    form.Unload();
    CHECK_FALSE(desk.first.IsLoaded());
    form.textBox.SetText(u"still there");
    laterLines = form.textBox.TextOf() == u"still there";
  };
  form.close.Press();
  CHECK(laterLines);
}

TEST_CASE("the next use after an unload makes a fresh window") {
  RulesDesk desk;
  desk.first->textBox.SetText(u"old");
  desk.first.Unload();
  CHECK(desk.first->textBox.TextOf().empty());
}

TEST_CASE("a window that goes with its owner runs no event and tells nobody") {
  RulesDesk desk;
  desk.first->Show();
  {
    WindowSlot<RulesForm> slot(desk.windows, [&desk] {
      return std::make_unique<RulesForm>(desk.windows, "Third", desk.log);
    });
    Window<RulesForm>(slot)->Show();
    CHECK(desk.windows.ActiveForm() == &slot.Instance());
    desk.log.clear();
    desk.renderer.activated.clear();
  }
  CHECK(desk.log.empty());
  CHECK(desk.renderer.activated.empty());
  CHECK(desk.windows.ActiveForm() == &desk.first.Instance());
  CHECK(desk.windows.LoadedForms().size() == 1);
}

TEST_CASE("a disabled window takes no input") {
  RulesDesk desk;
  desk.first->Show();
  int clicks = 0;
  desk.first->close.onClick = [&] { ++clicks; };
  desk.first->SetEnabled(false);
  desk.first->close.Press();
  desk.first->UserClose();
  CHECK_FALSE(desk.first->UserAccelerator(u'c'));
  CHECK(clicks == 0);
  CHECK(desk.first.IsLoaded());
}

TEST_CASE("while a modal window is up no other takes input") {
  RulesDesk desk;
  desk.first->Show();
  bool firstTakes = true;
  bool secondTakes = false;
  desk.renderer.whileModal = [&](Form& modal) {
    firstTakes = desk.first->TakesInput();
    secondTakes = modal.TakesInput();
    modal.Unload();
  };
  desk.second->Show(Modality::kModal);
  CHECK_FALSE(firstTakes);
  CHECK(secondTakes);
  CHECK(desk.first->TakesInput());
}

TEST_CASE("a minimised or maximised child can't be moved or sized") {
  RulesDesk desk;
  desk.first->SetState(WindowState::kMaximised);
  CHECK_THROWS_AS(desk.first->SetHeight(10), RunTimeError);
  CHECK_THROWS_AS(desk.first->SetLeft(10), RunTimeError);
}

TEST_CASE("placing in the frame sets the size, centres and shows") {
  RulesDesk desk;
  PlaceInFrame(desk.firstSlot, 4000, 6000, desk.frame);
  CHECK(desk.first->Height() == 4000);
  CHECK(desk.first->Width() == 6000);
  CHECK(desk.first->Top() == (9000 - 4000) / 2);
  CHECK(desk.first->Left() == (12000 - 6000) / 2);
  CHECK(desk.first->Visible());
}

TEST_CASE("placing brings a minimised or maximised window back to normal") {
  for (const WindowState state : {WindowState::kMinimised, WindowState::kMaximised}) {
    RulesDesk desk;
    desk.first->SetState(state);
    PlaceInFrame(desk.firstSlot, 4000, 6000, desk.frame);
    CHECK(desk.first->State() == WindowState::kNormal);
    CHECK(desk.first->Height() == 4000);
  }
}

TEST_CASE("one call holds one side of a window's size, the height first") {
  RulesDesk desk;
  HoldWindowSize(1000, 1500, desk.first.Loaded());
  CHECK(desk.first->Height() == 1000);
  CHECK(desk.first->Width() == 3000);
  HoldWindowSize(1000, 1500, desk.first.Loaded());
  CHECK(desk.first->Width() == 1500);
}

}  // namespace tessara::test
