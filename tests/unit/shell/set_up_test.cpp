#include <doctest/doctest.h>

#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

/// The program with the set-up window in front.
struct SetUpDesk : ProgramDesk {
  SetUpWindow* window = nullptr;
  void Open() {
    Start();
    Deck().closeDeck.Press();
    Frame().setUp.Press();
    window = program.SetUpWindowOf().IsLoaded() ? &program.SetUpWindowOf().Loaded() : nullptr;
  }
};

const FakeMessages::Shown kSaved{
    u"The current settings have been saved. Any background changes will take effect the next time "
    u"Tessara is executed.",
    0, u"Save settings"};
const FakeMessages::Shown kQuestion{u"Set-Up changes have been made, do you want to save them?", 36,
                                    u"Set-Up Changes"};

}  // namespace

TEST_CASE("the set-up window shows the defaults of a first run with nothing to apply") {
  SetUpDesk desk;
  desk.fakes.settings.values.erase(u"ShowSplash");
  desk.Open();
  REQUIRE(desk.window != nullptr);
  CHECK(desk.window->showSplash.Ticked());
  CHECK(desk.window->mainCardColors[0].Selected());
  CHECK(desk.window->mainCardReliefs[1].Selected());
  CHECK(desk.window->answerCardColors[0].Selected());
  CHECK(desk.window->answerCardReliefs[1].Selected());
  CHECK(desk.window->backdrops.TextOf() == u"DEFAULT");
  CHECK(desk.window->preview.PictureOf().file == "backdrops/DEFAULT.jpg");
  CHECK_FALSE(desk.window->apply.Enabled());
  CHECK(desk.window->Width() == 6330);
  CHECK(desk.window->Height() == 4350);
}

TEST_CASE("each control changes its setting at once and the store only on Apply") {
  SetUpDesk desk;
  desk.Open();
  const auto change = [&](auto& control, const Text& setting, TextView value) {
    control.Press();
    CHECK(setting == value);
    CHECK(desk.window->apply.Enabled());
  };
  change(desk.window->showSplash, desk.state.settings.showSplash, u"1");
  change(desk.window->mainCardColors[1], desk.state.settings.largeCardColor, u"1");
  change(desk.window->mainCardReliefs[0], desk.state.settings.largeCard3D, u"0");
  change(desk.window->answerCardColors[1], desk.state.settings.smallCardColor, u"1");
  change(desk.window->answerCardReliefs[0], desk.state.settings.smallCard3D, u"0");
  desk.window->backdrops.UserSelect(9);
  CHECK(desk.state.settings.backdrop == u"DEFAULT");
  CHECK(desk.fakes.settings.writes.empty());
  desk.window->apply.Press();
  CHECK(desk.fakes.settings.writes ==
        std::vector<std::pair<Text, Text>>{{u"ShowSplash", u"1"},
                                           {u"LargeCardColor", u"1"},
                                           {u"LargeCard3D", u"0"},
                                           {u"SmallCardColor", u"1"},
                                           {u"SmallCard3D", u"0"},
                                           {u"BackDrop", u"GRANITE"}});
  CHECK(desk.state.settings.backdrop == u"GRANITE");
  CHECK(desk.fakes.messages.shown == std::vector{kSaved});
  CHECK_FALSE(desk.window->apply.Enabled());
  desk.window->apply.Press();
  CHECK(desk.fakes.messages.shown.size() == 1);
}

TEST_CASE("closing with changes asks, Yes saves, both answers close") {
  for (const bool yes : {true, false}) {
    SetUpDesk desk;
    desk.Open();
    desk.window->mainCardColors[1].Press();
    desk.fakes.messages.answers = {yes ? MessageAnswer::kYes : MessageAnswer::kNo};
    desk.window->close.Press();
    CHECK(desk.fakes.messages.shown ==
          (yes ? std::vector{kQuestion, kSaved} : std::vector{kQuestion}));
    CHECK_FALSE(desk.program.SetUpWindowOf().IsLoaded());
    CHECK(desk.state.settings.largeCardColor == u"1");
    CHECK(desk.fakes.settings.writes.empty() != yes);
    desk.Frame().setUp.Press();
    CHECK(desk.program.SetUpWindowOf()->mainCardColors[1].Selected());
    CHECK_FALSE(desk.program.SetUpWindowOf()->apply.Enabled());
  }
}

TEST_CASE("changes that were not saved show in the next deck window, not in the next start") {
  SetUpDesk desk;
  desk.Open();
  desk.window->mainCardColors[1].Press();
  desk.window->answerCardReliefs[0].Press();
  desk.fakes.messages.answers = {MessageAnswer::kNo};
  desk.window->close.Press();
  desk.Frame().newExtendedDeck.Press();
  CHECK(desk.Deck().card.CardColor() == u"A");
  CHECK(desk.Deck().answerCard.PictureOf().file == "skins/white_flat.png");
  SetUpDesk next;
  next.fakes.settings.values = desk.fakes.settings.values;
  next.Start();
  CHECK(next.Deck().card.CardColor() == u"Q");
}

TEST_CASE("the box that tells of the save comes up before the window closes") {
  SetUpDesk desk;
  desk.Open();
  desk.window->showSplash.Press();
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  std::vector<bool> loaded;
  desk.fakes.messages.whileShown = [&](const FakeMessages::Shown&) {
    loaded.push_back(desk.program.SetUpWindowOf().IsLoaded());
  };
  desk.window->close.Press();
  CHECK(loaded == std::vector{true, true});
}

TEST_CASE("closing without changes asks nothing") {
  SetUpDesk desk;
  desk.Open();
  desk.window->close.Press();
  CHECK(desk.fakes.messages.shown.empty());
  CHECK_FALSE(desk.program.SetUpWindowOf().IsLoaded());
}

TEST_CASE("the preview stands in the middle of its area") {
  SetUpDesk desk;
  desk.Open();
  desk.window->backdrops.UserSelect(3);  // DESERT, 160 by 120
  CHECK(desk.window->preview.BoundsOf() ==
        Bounds{(1725 - 2400) / 2, (1695 - 1800) / 2, 2400, 1800});
}

TEST_CASE("choosing no backdrop ends the program with the image list's error") {
  SetUpDesk desk;
  desk.Open();
  desk.window->backdrops.UserSelect(0);
  CHECK(desk.fakes.messages.shown.back().text ==
        u"Run-time error '35600':\r\n\r\nIndex out of bounds");
  CHECK(desk.renderer.exitStatus == 1);
}

TEST_CASE("bad stored values fail when the set-up window loads") {
  struct Case {
    Text Settings::*setting;
    TextView value;
    TextView error;
  };
  const Case cases[] = {
      {&Settings::showSplash, u"x", u"13"},      {&Settings::showSplash, u"7", u"380"},
      {&Settings::largeCardColor, u"2", u"340"}, {&Settings::largeCard3D, u"-1", u"340"},
      {&Settings::smallCardColor, u"x", u"13"},  {&Settings::smallCard3D, u"40000", u"6"},
      {&Settings::backdrop, u"PLAID", u"35600"}};
  for (const Case& c : cases) {
    SetUpDesk desk;
    desk.Start();
    desk.Deck().closeDeck.Press();
    desk.state.settings.*c.setting = c.value;
    desk.Frame().setUp.Press();
    REQUIRE_FALSE(desk.fakes.messages.shown.empty());
    CHECK(desk.fakes.messages.shown.back().text.starts_with(u"Run-time error '" + Text(c.error) +
                                                            u"'"));
    CHECK(desk.renderer.exitStatus == 1);
  }
}

TEST_CASE("the set-up window holds its size") {
  SetUpDesk desk;
  desk.Open();
  desk.window->SetHeight(9000);
  CHECK(desk.window->Height() == 4350);
  desk.window->SetWidth(9000);
  CHECK(desk.window->Width() == 6330);
}

}  // namespace tessara::test
