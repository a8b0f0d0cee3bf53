#include <doctest/doctest.h>

#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

/// The program with the set-up window in front.
struct SetUpFixture : ProgramFixture {
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
  SetUpFixture fixture;
  fixture.fakes.settings.values.erase(u"ShowSplash");
  fixture.Open();
  REQUIRE(fixture.window != nullptr);
  CHECK(fixture.window->showSplash.Ticked());
  CHECK(fixture.window->mainCardColors[0].Selected());
  CHECK(fixture.window->mainCardReliefs[1].Selected());
  CHECK(fixture.window->answerCardColors[0].Selected());
  CHECK(fixture.window->answerCardReliefs[1].Selected());
  CHECK(fixture.window->backdrops.TextOf() == u"DEFAULT");
  CHECK(fixture.window->preview.PictureOf().file == "backdrops/DEFAULT.jpg");
  CHECK_FALSE(fixture.window->apply.Enabled());
  CHECK(fixture.window->Width() == 6330);
  CHECK(fixture.window->Height() == 4350);
}

TEST_CASE("each control changes its setting at once and the store only on Apply") {
  SetUpFixture fixture;
  fixture.Open();
  const auto change = [&](auto& control, const Text& setting, TextView value) {
    control.Press();
    CHECK(setting == value);
    CHECK(fixture.window->apply.Enabled());
  };
  change(fixture.window->showSplash, fixture.state.settings.showSplash, u"1");
  change(fixture.window->mainCardColors[1], fixture.state.settings.largeCardColor, u"1");
  change(fixture.window->mainCardReliefs[0], fixture.state.settings.largeCard3D, u"0");
  change(fixture.window->answerCardColors[1], fixture.state.settings.smallCardColor, u"1");
  change(fixture.window->answerCardReliefs[0], fixture.state.settings.smallCard3D, u"0");
  fixture.window->backdrops.UserSelect(9);
  CHECK(fixture.state.settings.backdrop == u"DEFAULT");
  CHECK(fixture.fakes.settings.writes.empty());
  fixture.window->apply.Press();
  CHECK(fixture.fakes.settings.writes ==
        std::vector<std::pair<Text, Text>>{{u"ShowSplash", u"1"},
                                           {u"LargeCardColor", u"1"},
                                           {u"LargeCard3D", u"0"},
                                           {u"SmallCardColor", u"1"},
                                           {u"SmallCard3D", u"0"},
                                           {u"BackDrop", u"GRANITE"}});
  CHECK(fixture.state.settings.backdrop == u"GRANITE");
  CHECK(fixture.fakes.messages.shown == std::vector{kSaved});
  CHECK_FALSE(fixture.window->apply.Enabled());
  fixture.window->apply.Press();
  CHECK(fixture.fakes.messages.shown.size() == 1);
}

TEST_CASE("closing with changes asks, Yes saves, both answers close") {
  for (const bool yes : {true, false}) {
    SetUpFixture fixture;
    fixture.Open();
    fixture.window->mainCardColors[1].Press();
    fixture.fakes.messages.answers = {yes ? MessageAnswer::kYes : MessageAnswer::kNo};
    fixture.window->close.Press();
    CHECK(fixture.fakes.messages.shown ==
          (yes ? std::vector{kQuestion, kSaved} : std::vector{kQuestion}));
    CHECK_FALSE(fixture.program.SetUpWindowOf().IsLoaded());
    CHECK(fixture.state.settings.largeCardColor == u"1");
    CHECK(fixture.fakes.settings.writes.empty() != yes);
    fixture.Frame().setUp.Press();
    CHECK(fixture.program.SetUpWindowOf()->mainCardColors[1].Selected());
    CHECK_FALSE(fixture.program.SetUpWindowOf()->apply.Enabled());
  }
}

TEST_CASE("changes that were not saved show in the next deck window, not in the next start") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->mainCardColors[1].Press();
  fixture.window->answerCardReliefs[0].Press();
  fixture.fakes.messages.answers = {MessageAnswer::kNo};
  fixture.window->close.Press();
  fixture.Frame().newExtendedDeck.Press();
  CHECK(fixture.Deck().card.CardColor() == u"A");
  CHECK(fixture.Deck().answerCard.PictureOf().file == "skins/white_flat.png");
  SetUpFixture next;
  next.fakes.settings.values = fixture.fakes.settings.values;
  next.Start();
  CHECK(next.Deck().card.CardColor() == u"Q");
}

TEST_CASE("the box that tells of the save comes up before the window closes") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->showSplash.Press();
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  std::vector<bool> loaded;
  fixture.fakes.messages.whileShown = [&](const FakeMessages::Shown&) {
    loaded.push_back(fixture.program.SetUpWindowOf().IsLoaded());
  };
  fixture.window->close.Press();
  CHECK(loaded == std::vector{true, true});
}

TEST_CASE("closing without changes asks nothing") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->close.Press();
  CHECK(fixture.fakes.messages.shown.empty());
  CHECK_FALSE(fixture.program.SetUpWindowOf().IsLoaded());
}

TEST_CASE("the preview stands in the middle of its area") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->backdrops.UserSelect(3);  // DESERT, 160 by 120
  CHECK(fixture.window->preview.BoundsOf() ==
        Bounds{(1725 - 2400) / 2, (1695 - 1800) / 2, 2400, 1800});
}

TEST_CASE("choosing no backdrop ends the program with the image list's error") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->backdrops.UserSelect(0);
  CHECK(fixture.fakes.messages.shown.back().text ==
        u"Run-time error '35600':\r\n\r\nIndex out of bounds");
  CHECK(fixture.renderer.exitStatus == 1);
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
    SetUpFixture fixture;
    fixture.Start();
    fixture.Deck().closeDeck.Press();
    fixture.state.settings.*c.setting = c.value;
    fixture.Frame().setUp.Press();
    REQUIRE_FALSE(fixture.fakes.messages.shown.empty());
    CHECK(fixture.fakes.messages.shown.back().text.starts_with(u"Run-time error '" + Text(c.error) +
                                                               u"'"));
    CHECK(fixture.renderer.exitStatus == 1);
  }
}

TEST_CASE("the set-up window holds its size") {
  SetUpFixture fixture;
  fixture.Open();
  fixture.window->SetHeight(9000);
  CHECK(fixture.window->Height() == 4350);
  fixture.window->SetWidth(9000);
  CHECK(fixture.window->Width() == 6330);
}

}  // namespace tessara::test
