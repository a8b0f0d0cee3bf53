// Random walks through both builders, step by step against a model of what must come of them.

#include <array>
#include <doctest/doctest.h>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "tests/unit/authoring/essay_model.h"
#include "tests/unit/authoring/question_model.h"

namespace tessara::test {

namespace {

constexpr int kWalks = 60;
constexpr int kSteps = 150;

/// One step of the user. The numbers choose a box, a line, an option, a text.
struct Step {
  enum Kind : int {
    kWrite,
    kKey,
    kVisit,
    kMark,
    kTrueFalse,
    kType,
    kMove,
    kNew,
    kAddCard,
    kCancelCard,
    kClose,
    kCloseBox,
  };
  Kind kind = kWrite;
  int place = 0;
  std::size_t text = 0;
  bool yes = false;
};

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int Roll(int sides) { return static_cast<int>(engine_() % static_cast<unsigned>(sides)); }
  Step Next(const std::vector<Step::Kind>& kinds) {
    const auto kind = kinds[static_cast<std::size_t>(Roll(static_cast<int>(kinds.size())))];
    return {kind, Roll(5), static_cast<std::size_t>(Roll(1000)), Roll(2) == 0};
  }

 private:
  std::mt19937 engine_;
};

/// Texts of questions and answer lines.
const std::vector<Text>& QuestionTexts() {
  static const std::vector<Text> texts = {u"",
                                          u"a",
                                          u"Rhythm & Blues",
                                          u"[TEXT MISSING HERE]",
                                          u"x",
                                          u"forty-five characters are written on this one",
                                          Text(60, u'l')};
  return texts;
}

std::string LookText(const ButtonsLook& look) {
  std::string text;
  for (const bool on : {look.newOn, look.addOn, look.cancelOn, look.previousOn, look.nextOn}) {
    text += on ? '1' : '0';
  }
  return text + " " + ToUtf8(look.addCaption) + " " + ToUtf8(look.cancelCaption);
}

/// One line that tells counts, flags, buttons and the boxes that came up.
std::string Summary(int current, int count, const std::array<bool, 3>& flags,
                    const ButtonsLook& look, const Text& number, const std::vector<Text>& boxes) {
  std::string text = std::to_string(current) + "/" + std::to_string(count) + " ";
  for (const bool flag : flags) text += flag ? '1' : '0';
  text += " " + LookText(look) + " " + ToUtf8(number);
  for (const Text& title : boxes) text += " [" + ToUtf8(title) + "]";
  return text;
}

std::string Summary(const BuilderModel& model) {
  return Summary(model.current, model.count, {model.deckChanged, model.saveOffered, model.goTo},
                 model.look, model.number, model.boxes);
}

std::string Summary(BuilderFixture& fixture, const ButtonsLook& look, const Text& number) {
  std::vector<Text> titles;
  for (const FakeMessages::Shown& box : fixture.TakeBoxes()) titles.push_back(box.title);
  CHECK_FALSE(fixture.state.building.fillingBoxes);
  return Summary(fixture.state.deck.currentCard, fixture.state.deck.cardCount,
                 {fixture.state.deck.changed, fixture.state.deck.saveOffered,
                  fixture.deck->goToCard.Enabled()},
                 look, number, titles);
}

/// The first cell or flag that differs, or nothing.
std::string Difference(const BuilderModel& model, const ProgramState& state) {
  for (int row = 0; row < kRows; ++row) {
    const auto at = static_cast<std::size_t>(row);
    if (model.present.at(at) != state.deck.cardPresent.At(row))
      return "flag " + std::to_string(row);
    for (int column = 0; column < kColumns; ++column) {
      if (model.rows.at(at).at(static_cast<std::size_t>(column)) == state.deck.Cell(row, column))
        continue;
      return "cell " + std::to_string(row) + ", " + std::to_string(column);
    }
  }
  return "";
}

/// Takes a step that both builders have, in the model; `takeOwn` takes every other.
template <class Model, class TakeOwn>
void TakeIn(Model& model, const Step& step, const TakeOwn& takeOwn) {
  switch (step.kind) {
    case Step::kMove:
      return model.Move(step.place % 2);
    case Step::kNew:
      return model.PressNew();
    case Step::kAddCard:
      return model.PressAdd();
    case Step::kCancelCard:
      return model.PressCancel();
    case Step::kClose:
      return model.PressClose();
    case Step::kCloseBox:
      return model.Reopen();
    default:
      return takeOwn();
  }
}

/// The same at the window.
template <class TakeOwn>
void TakeAt(BuilderWindow& window, BuilderWindow::Buttons& buttons, const Step& step,
            const TakeOwn& takeOwn) {
  switch (step.kind) {
    case Step::kMove:
      return window.arrows[step.place % 2].Press();
    case Step::kNew:
      return buttons[kNewButton].Press();
    case Step::kAddCard:
      return buttons[kAddButton].Press();
    case Step::kCancelCard:
      return buttons[kCancelButton].Press();
    case Step::kClose:
      return buttons[kCloseButton].Press();
    case Step::kCloseBox:
      return window.UserClose();
    default:
      return takeOwn();
  }
}

struct EssayWalk {
  using Model = EssayModel;
  static std::vector<Step::Kind> Kinds() {
    using enum Step::Kind;
    return {kWrite, kWrite, kWrite,   kWrite,   kWrite,      kMove,  kMove,
            kNew,   kNew,   kAddCard, kAddCard, kCancelCard, kClose, kCloseBox};
  }
  static void Open(BuilderFixture& fixture, int cards) { fixture.OpenEssay(cards); }

  static void Take(const Step& step, EssayModel& model) {
    TakeIn(model, step, [&] { model.Write(step.place % 2, TextOf(step)); });
  }
  static void Take(const Step& step, BuilderFixture& fixture) {
    TextCardBuilder& window = fixture.essay.Loaded();
    TakeAt(window, window.buttons, step,
           [&] { Replace(window.sides[step.place % 2], TextOf(step)); });
  }
  static const Text& TextOf(const Step& step) {
    return EssayModel::Texts()[step.text % EssayModel::Texts().size()].first;
  }

  static bool IsOpen(const BuilderFixture& fixture) { return fixture.essay.IsLoaded(); }
  static std::string Seen(BuilderFixture& fixture) {
    const TextCardBuilder& window = fixture.essay.Loaded();
    return Summary(fixture, LookOf(window), window.number.Caption()) + " " +
           ToUtf8(window.sides[kFrontSide].TextOf()) + "|" +
           ToUtf8(window.sides[kBackSide].TextOf());
  }
  static std::string Expected(const EssayModel& model) {
    return Summary(model) + " " + ToUtf8(model.front) + "|" + ToUtf8(model.back);
  }
};

struct QuestionWalk {
  using Model = QuestionModel;
  static std::vector<Step::Kind> Kinds() {
    using enum Step::Kind;
    return {kWrite, kWrite,   kWrite,   kWrite,      kWrite,     kWrite,   kKey,
            kKey,   kVisit,   kMark,    kMark,       kTrueFalse, kType,    kMove,
            kNew,   kAddCard, kAddCard, kCancelCard, kClose,     kCloseBox};
  }
  static void Open(BuilderFixture& fixture, int cards) { fixture.OpenQuestion(cards); }

  static void Take(const Step& step, QuestionModel& model) {
    TakeIn(model, step, [&] { TakeOwn(step, model); });
  }
  static void Take(const Step& step, BuilderFixture& fixture) {
    QuestionBuilder& window = fixture.question.Loaded();
    TakeAt(window, window.buttons, step, [&] { TakeOwn(step, window); });
  }
  static void TakeOwn(const Step& step, QuestionModel& model) {
    const int line = step.place % 4;
    switch (step.kind) {
      case Step::kKey:
        return model.TypeKey(line, KeyOf(step));
      case Step::kVisit:
        return model.Visit(line);
      case Step::kMark:
        return model.PickMark(line);
      case Step::kTrueFalse:
        return model.PickTrueFalse(step.place % 2);
      case Step::kType:
        return model.PickType(step.place % 2);
      default:
        return step.place == 4 ? model.WriteQuestion(TextOf(step))
                               : model.WriteLine(line, TextOf(step));
    }
  }
  static void TakeOwn(const Step& step, QuestionBuilder& window) {
    const int line = step.place % 4;
    switch (step.kind) {
      case Step::kKey:
        return Type(window.answers[line], Text(1, KeyOf(step)));
      case Step::kVisit:
        window.UserFocus(window.question);
        return window.UserFocus(window.answers[line]);
      case Step::kMark:
        return window.marks[line].Press();
      case Step::kTrueFalse:
        return window.trueFalseMarks[step.place % 2].Press();
      case Step::kType:
        return window.layouts[step.place % 2].Press();
      default:
        return Replace(step.place == 4 ? window.question : window.answers[line], TextOf(step));
    }
  }
  static const Text& TextOf(const Step& step) {
    return QuestionTexts()[step.text % QuestionTexts().size()];
  }
  static char16_t KeyOf(const Step& step) {
    constexpr TextView keys = u"aB c9[";
    return keys[step.text % keys.size()];
  }

  static bool IsOpen(const BuilderFixture& fixture) { return fixture.question.IsLoaded(); }
  static std::string Seen(BuilderFixture& fixture) {
    const QuestionBuilder& window = fixture.question.Loaded();
    std::string text = Summary(fixture, LookOf(window), window.number.Caption());
    text += "|" + ToUtf8(window.question.TextOf()) + " " +
            std::to_string(fixture.state.building.capitalCount);
    for (int line = 0; line < 4; ++line) {
      const TextBox& box = window.answers[line];
      text += Line(box.TextOf(),
                   {box.Enabled(), window.marks[line].Enabled(), window.marks[line].Selected()},
                   box.MaxLength());
    }
    for (int option = 0; option < 2; ++option) {
      text += window.trueFalseMarks[option].Selected() ? '1' : '0';
      text += window.layouts[option].Selected() ? '1' : '0';
      text += window.layouts[option].Enabled() ? '1' : '0';
    }
    return text + (window.choiceLayout.Visible() ? "choice" : "") +
           (window.trueFalseLayout.Visible() ? "tf" : "");
  }
  static std::string Expected(const QuestionModel& model) {
    std::string text = Summary(model);
    text += "|" + ToUtf8(model.question) + " " + std::to_string(model.capitals);
    for (int line = 0; line < 4; ++line) {
      const auto at = static_cast<std::size_t>(line);
      text +=
          Line(model.lines.at(at), {model.lineOn.at(at), model.markOn.at(at), model.mark == line},
               model.limit.at(at));
    }
    for (int option = 0; option < 2; ++option) {
      text += model.trueFalse == option ? '1' : '0';
      text += model.layout == option ? '1' : '0';
      text += model.typeOn ? '1' : '0';
    }
    return text + (model.layout == 0 ? "choice" : "tf");
  }
  static std::string Line(const Text& text, const std::array<bool, 3>& flags, int limit) {
    std::string line = "|" + ToUtf8(text) + " ";
    for (const bool flag : flags) line += flag ? '1' : '0';
    return line + " " + std::to_string(limit);
  }
};

/// What a walk came by, so that a walk that misses what it is for is noticed.
struct Sights {
  std::set<Text> titles;
  int steps = 0;
  int programEnds = 0;
  int fullDecks = 0;
};

/// True where the program goes on behind the step.
template <class Walk>
bool TakeStep(const Step& step, BuilderFixture& fixture, typename Walk::Model& model,
              Sights& sights) {
  model.boxes.clear();
  model.yes = step.yes;
  bool ends = false;
  try {
    Walk::Take(step, model);
  } catch (const OutOfTable&) {
    ends = true;
  }
  sights.titles.insert(model.boxes.begin(), model.boxes.end());
  fixture.fakes.messages.answers = {step.yes ? MessageAnswer::kYes : MessageAnswer::kNo};
  Walk::Take(step, fixture);
  if (ends) {
    ++sights.programEnds;
    CHECK(fixture.windows.ExitStatus() == 1);
    return false;
  }
  REQUIRE_FALSE(fixture.windows.ExitStatus());
  if (!Walk::IsOpen(fixture)) fixture.OpenBuilder();
  return true;
}

template <class Walk>
void WalkOnce(unsigned seed, Sights& sights) {
  constexpr std::array<int, 5> kDecks = {0, 1, 3, 199, 200};
  BuilderFixture fixture;
  Walk::Open(fixture, kDecks.at(seed % kDecks.size()));
  typename Walk::Model model(fixture);
  Dice dice(seed);
  for (int step = 0; step < kSteps; ++step) {
    const Step next = dice.Next(Walk::Kinds());
    CAPTURE(seed);
    CAPTURE(step);
    CAPTURE(static_cast<int>(next.kind));
    CAPTURE(next.place);
    if (!TakeStep<Walk>(next, fixture, model, sights)) return;
    ++sights.steps;
    if (model.count >= kMostCards) ++sights.fullDecks;
    REQUIRE(Walk::Seen(fixture) == Walk::Expected(model));
    REQUIRE(Difference(model, fixture.state) == "");
    const bool leadsOut = model.look.previousOn && model.current <= 1;
    REQUIRE_FALSE(leadsOut);
  }
}

template <class Walk>
Sights WalkAll() {
  Sights sights;
  for (unsigned seed = 1; seed <= kWalks; ++seed) WalkOnce<Walk>(seed, sights);
  CHECK(sights.steps > 5000);
  CHECK(sights.fullDecks > 0);
  return sights;
}

}  // namespace

TEST_CASE("the text builder does what its model does through thousands of random steps") {
  const Sights sights = WalkAll<EssayWalk>();
  CHECK(sights.titles.count(u"Changed Card") == 1);
  CHECK(sights.titles.count(u"Unsaved Card") == 1);
  CHECK(sights.titles.count(u"Maximum Lines Reached!") == 1);
  CHECK(sights.titles.count(u"Delete Card # 1") == 1);
}

TEST_CASE("the question builder does what its model does through thousands of random steps") {
  const Sights sights = WalkAll<QuestionWalk>();
  CHECK(sights.titles.count(u"Changed Card") == 1);
  CHECK(sights.titles.count(u"Tessara") == 1);
  CHECK(sights.titles.count(u"Error: Unable To Save Card") == 1);
  CHECK(sights.titles.count(u"Delete Card # 1") == 1);
}

}  // namespace tessara::test
