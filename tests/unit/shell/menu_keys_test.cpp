// The keys that stand beside entries of the menus.

#include <doctest/doctest.h>
#include <functional>

#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

const Text kBirds = u"/decks/birds.tsr";

std::string ShownKeys(const Form& form, const char* entry) {
  const MenuEntry* found = form.FindMenu(entry);
  REQUIRE(found != nullptr);
  return ToUtf8(found->Keys());
}

struct KeysDesk : ProgramDesk {
  explicit KeysDesk(TextView type = u"E") {
    fakes.files.Put(kBirds, DeckBytes(2, type));
    Start(kBirds);
  }
  bool Running() { return !program.Windows().ExitStatus(); }
};

}  // namespace

TEST_CASE("the commands that everybody's fingers know have their keys") {
  KeysDesk desk;
  const std::pair<const char*, const char*> deckKeys[] = {
      {"mnuOCD", "Ctrl+O"},   {"mnuSave", "Ctrl+S"},  {"mnuSaveAs", "Ctrl+Shift+S"},
      {"mnuPrint", "Ctrl+P"}, {"mnuGTP", "Ctrl+G"},   {"mnuACTTD", "Ctrl+E"},
      {"mnuExit", "Ctrl+W"},  {"mnuHelpTopic", "F1"}, {"mnuDelete", ""}};
  for (const auto& [entry, keys] : deckKeys) CHECK(ShownKeys(desk.Deck(), entry) == keys);
  const std::pair<const char*, const char*> frameKeys[] = {
      {"mnuOPenExisting", "Ctrl+O"}, {"mnuExit", "Ctrl+Q"}, {"mnuHelpTopics", "F1"}};
  for (const auto& [entry, keys] : frameKeys) CHECK(ShownKeys(desk.Frame(), entry) == keys);
}

TEST_CASE("an entry that is off is off for its keys too") {
  KeysDesk desk;
  REQUIRE_FALSE(desk.Deck().saveDeck.Enabled());
  desk.Deck().saveDeck.UserChoose();
  CHECK(desk.fakes.messages.shown.empty());
  desk.Deck().quiz.Press();
  desk.Deck().createOrEditCard.UserChoose();
  CHECK_FALSE(desk.program.TextBuilder().IsLoaded());
}

TEST_CASE("the keys of the end close the frame, with every question that its close box asks") {
  KeysDesk desk;
  REQUIRE_FALSE(desk.Frame().fileMenu.Enabled());
  desk.fakes.messages.answers = {MessageAnswer::kNo};
  desk.Frame().exit.UserChoose();
  CHECK(desk.Running());
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Frame().exit.UserChoose();
  CHECK_FALSE(desk.Running());
}

TEST_CASE("the keys of the end do nothing while a builder holds a text that is not in the deck") {
  struct Case {
    const char* what;
    TextView type;
    bool holds;
    std::function<void(KeysDesk&)> write;
  };
  const auto textBox = [](KeysDesk& desk) -> TextBox& {
    return desk.program.TextBuilder()->sides[kBackSide];
  };
  const auto builder = [](KeysDesk& desk) -> QuestionBuilder& {
    return desk.program.QuestionBuilderOf().Loaded();
  };
  const Case cases[] = {
      {"text card as in the deck", u"E", false, [](KeysDesk&) {}},
      {"changed text card", u"E", true,
       [&](KeysDesk& desk) {
         textBox(desk).UserEdit({0, 0, u"x"});
       }},
      {"text card without its front", u"E", true,
       [&](KeysDesk& desk) {
         const auto size = textBox(desk).TextOf().size();
         textBox(desk).UserEdit({0, size, u""});
       }},
      {"new text card", u"E", false,
       [](KeysDesk& desk) { desk.program.TextBuilder()->buttons[kNewButton].Press(); }},
      {"begun text card", u"E", true,
       [&](KeysDesk& desk) {
         desk.program.TextBuilder()->buttons[kNewButton].Press();
         textBox(desk).UserEdit({0, 0, u"x"});
       }},
      {"question as in the deck", u"T", false, [](KeysDesk&) {}},
      {"changed question", u"T", true,
       [&](KeysDesk& desk) {
         builder(desk).question.UserEdit({0, 0, u"x"});
       }},
      {"changed mark", u"T", true,
       [&](KeysDesk& desk) { builder(desk).trueFalseMarks[kFalseMark].Press(); }},
      {"begun answer", u"T", true,
       [&](KeysDesk& desk) {
         builder(desk).buttons[kNewButton].Press();
         builder(desk).layouts[kMultipleChoice].Press();
         builder(desk).answers[0].UserEdit({0, 0, u"x"});
       }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    KeysDesk desk(c.type);
    desk.Deck().createOrEditCard.Press();
    c.write(desk);
    desk.fakes.messages.answers = {MessageAnswer::kYes};
    desk.Frame().exit.UserChoose();
    CHECK(desk.Running() == c.holds);
  }
}

TEST_CASE("the keys of the end do nothing behind a modal window") {
  KeysDesk desk;
  bool ended = true;
  desk.renderer.whileModal = [&](Form& form) {
    desk.Frame().exit.UserChoose();
    ended = !desk.Running();
    form.Unload();
  };
  desk.Frame().ShowInstructions();
  CHECK_FALSE(ended);
}

}  // namespace tessara::test
