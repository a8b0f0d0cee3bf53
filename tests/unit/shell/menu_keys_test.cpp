// The keys that stand beside entries of the menus.

#include <doctest/doctest.h>
#include <functional>

#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

const Text kBirds = u"/decks/birds.tsr";

std::string ShownKeys(const Form& form, const char* entry) {
  const MenuEntry* found = form.FindMenu(entry);
  REQUIRE(found != nullptr);
  return ToUtf8(found->Keys());
}

struct KeysFixture : ProgramFixture {
  explicit KeysFixture(TextView type = u"E") {
    fakes.files.Put(kBirds, DeckBytes(2, type));
    Start(kBirds);
  }
  bool Running() { return !program.Windows().ExitStatus(); }
};

}  // namespace

TEST_CASE("the commands that everybody's fingers know have their keys") {
  KeysFixture fixture;
  const std::pair<const char*, const char*> deckKeys[] = {
      {"mnuOCD", "Ctrl+O"},   {"mnuSave", "Ctrl+S"},  {"mnuSaveAs", "Ctrl+Shift+S"},
      {"mnuPrint", "Ctrl+P"}, {"mnuGTP", "Ctrl+G"},   {"mnuACTTD", "Ctrl+E"},
      {"mnuExit", "Ctrl+W"},  {"mnuHelpTopic", "F1"}, {"mnuDelete", ""}};
  for (const auto& [entry, keys] : deckKeys) CHECK(ShownKeys(fixture.Deck(), entry) == keys);
  const std::pair<const char*, const char*> frameKeys[] = {
      {"mnuOPenExisting", "Ctrl+O"}, {"mnuExit", "Ctrl+Q"}, {"mnuHelpTopics", "F1"}};
  for (const auto& [entry, keys] : frameKeys) CHECK(ShownKeys(fixture.Frame(), entry) == keys);
}

TEST_CASE("an entry that is off is off for its keys too") {
  KeysFixture fixture;
  REQUIRE_FALSE(fixture.Deck().saveDeck.Enabled());
  fixture.Deck().saveDeck.UserChoose();
  CHECK(fixture.fakes.messages.shown.empty());
  fixture.Deck().quiz.Press();
  fixture.Deck().createOrEditCard.UserChoose();
  CHECK_FALSE(fixture.program.TextBuilder().IsLoaded());
}

TEST_CASE("the keys of the end close the frame, with every question that its close box asks") {
  KeysFixture fixture;
  REQUIRE_FALSE(fixture.Frame().fileMenu.Enabled());
  fixture.fakes.messages.answers = {MessageAnswer::kNo};
  fixture.Frame().exit.UserChoose();
  CHECK(fixture.Running());
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Frame().exit.UserChoose();
  CHECK_FALSE(fixture.Running());
}

TEST_CASE("the keys of the end do nothing while a builder holds a text that is not in the deck") {
  struct Case {
    const char* what;
    TextView type;
    bool holds;
    std::function<void(KeysFixture&)> write;
  };
  const auto textBox = [](KeysFixture& fixture) -> TextBox& {
    return fixture.program.TextBuilder()->sides[kBackSide];
  };
  const auto builder = [](KeysFixture& fixture) -> QuestionBuilder& {
    return fixture.program.QuestionBuilderOf().Loaded();
  };
  const Case cases[] = {
      {"text card as in the deck", u"E", false, [](KeysFixture&) {}},
      {"changed text card", u"E", true,
       [&](KeysFixture& fixture) {
         textBox(fixture).UserEdit({0, 0, u"x"});
       }},
      {"text card without its front", u"E", true,
       [&](KeysFixture& fixture) {
         const auto size = textBox(fixture).TextOf().size();
         textBox(fixture).UserEdit({0, size, u""});
       }},
      {"new text card", u"E", false,
       [](KeysFixture& fixture) { fixture.program.TextBuilder()->buttons[kNewButton].Press(); }},
      {"begun text card", u"E", true,
       [&](KeysFixture& fixture) {
         fixture.program.TextBuilder()->buttons[kNewButton].Press();
         textBox(fixture).UserEdit({0, 0, u"x"});
       }},
      {"question as in the deck", u"T", false, [](KeysFixture&) {}},
      {"changed question", u"T", true,
       [&](KeysFixture& fixture) {
         builder(fixture).question.UserEdit({0, 0, u"x"});
       }},
      {"changed mark", u"T", true,
       [&](KeysFixture& fixture) { builder(fixture).trueFalseMarks[kFalseMark].Press(); }},
      {"begun answer", u"T", true,
       [&](KeysFixture& fixture) {
         builder(fixture).buttons[kNewButton].Press();
         builder(fixture).layouts[kMultipleChoice].Press();
         builder(fixture).answers[0].UserEdit({0, 0, u"x"});
       }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    KeysFixture fixture(c.type);
    fixture.Deck().createOrEditCard.Press();
    c.write(fixture);
    fixture.fakes.messages.answers = {MessageAnswer::kYes};
    fixture.Frame().exit.UserChoose();
    CHECK(fixture.Running() == c.holds);
  }
}

TEST_CASE("the keys of the end do nothing behind a modal window") {
  KeysFixture fixture;
  bool ended = true;
  fixture.renderer.whileModal = [&](Form& form) {
    fixture.Frame().exit.UserChoose();
    ended = !fixture.Running();
    form.Unload();
  };
  fixture.Frame().ShowInstructions();
  CHECK_FALSE(ended);
}

}  // namespace tessara::test
