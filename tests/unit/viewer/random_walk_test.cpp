#include <doctest/doctest.h>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "deck/card_display.h"
#include "tests/support/deck_fixture.h"
#include "viewer/answer_text.h"

namespace tessara::test {

namespace {

constexpr int kSteps = 5000;

/// Takes a deck by steps at random, as fast fingers would, and holds the window against what must
/// be true after any of them.
class Walk {
 public:
  Walk(bool extended, int cards, unsigned seed) : random_(seed), cards_(cards) {
    extended ? fixture_.OpenExtendedDeck(cards) : fixture_.OpenStandardDeck(cards);
    fixture_.deck->study.Press();
    ListSteps();
  }

  void TakeStep() {
    const Step& step = steps_[Random(static_cast<int>(steps_.size()))];
    trace_ += step.name + " ";
    if (trace_.size() > 300) trace_.erase(0, trace_.size() - 300);
    step.action();
    fixture_.fakes.messages.answers.clear();
    fixture_.fakes.messages.shown.clear();
    fixture_.fakes.dialogs.texts.clear();
    CAPTURE(trace_);
    CheckAll();
  }

  [[nodiscard]] bool Over() const { return fixture_.state.deck.cardCount == 0; }

 private:
  struct Step {
    std::string name;
    std::function<void()> action;
  };

  std::size_t Random(int count) { return random_() % static_cast<unsigned>(count); }

  void ListSteps() {
    DeckWindow& deck = fixture_.deck.Loaded();
    const auto press = [this](auto& control, int times) {
      for (int at = 0; at < times; ++at) {
        steps_.push_back({control.Name(), [&control] { control.Press(); }});
      }
    };
    for (Button& button : deck.arrows) press(button, 3);
    for (Button& button : deck.credits) press(button, 2);
    for (OptionButton& option : deck.choices) press(option, 2);
    press(deck.nextOrScore, 4);
    press(deck.flip, 6);
    for (MenuEntry* entry : {&deck.study, &deck.quiz, &deck.test}) press(*entry, 1);
    steps_.push_back({"activate", [&deck] {
                        deck.Hide();
                        deck.Show();
                      }});
    steps_.push_back({"close", [this, &deck] {
                        fixture_.fakes.messages.answers = {MessageAnswer::kNo, MessageAnswer::kNo};
                        deck.closeDeck.Press();
                      }});
    steps_.push_back({"delete", [this] { Delete(); }});
    steps_.push_back({"go-to", [this, &deck] {
                        const int number = static_cast<int>(Random(cards_ + 4)) - 2;
                        fixture_.fakes.dialogs.texts = {DecimalText(number)};
                        deck.goToCard.Press();
                      }});
  }

  void Delete() {
    const bool agreed = Random(12) == 0;
    fixture_.fakes.messages.answers = {agreed ? MessageAnswer::kYes : MessageAnswer::kNo};
    fixture_.deck->deleteCard.Press();
    frontOnShow_ = frontOnShow_ || !fixture_.fakes.messages.shown.empty();
  }

  void CheckAll() {
    CheckPanels();
    CheckSide();
    CheckPoints();
    CheckMenus();
    CheckPlace();
  }

  void CheckPanels() const {
    const DeckWindow& deck = Deck();
    const bool panels[] = {deck.creditPanel.Visible(), deck.choicePanel.Visible(),
                           deck.answerCard.Visible()};
    CHECK(std::count(std::begin(panels), std::end(panels), true) <= 1);
    CHECK(deck.creditPanel.Visible() == (Testing() && !Extended()));
    CHECK(deck.choicePanel.Visible() == (Testing() && Extended()));
  }

  /// A delete shows the front under either caption, until the card is painted anew.
  void CheckSide() {
    const TextView caption = Deck().flip.Caption();
    const ProgramState& state = fixture_.state;
    const auto shows = [&](int column) {
      return Deck().card.CardText() == DoubleAmps(state.deck.Cell(state.deck.currentCard, column));
    };
    if (Extended()) {
      CHECK((caption == u"&Hide Answer" || caption == u"&Show Answer"));
      CHECK(shows(kCardText));
      CHECK(Deck().card.FrontLines());
      if (!Testing()) CHECK(Deck().answerCard.Visible() == (caption == u"&Hide Answer"));
      if (Deck().answerCard.Visible()) {
        const Text key = state.deck.Cell(state.deck.currentCard, kAnswer);
        CHECK(Deck().answer.Caption() == AnswerText(key, state.deck.currentCard, state));
      }
      return;
    }
    const bool back = caption == u"&Show Front";
    CHECK((back || caption == u"&Show Back"));
    CHECK(Deck().card.FrontLines() == (!back || state.deck.cardCount == 0));
    CHECK(Deck().card.FrontRule() == Deck().card.FrontLines());
    const bool agrees = shows(back ? kBackText : kCardText);
    CHECK((agrees || (frontOnShow_ && shows(kCardText))));
    frontOnShow_ = frontOnShow_ && !agrees;
  }

  void CheckPoints() const {
    const double points = fixture_.state.deck.testPoints;
    CHECK(points >= 0);
    CHECK(points <= fixture_.state.deck.cardCount);
    CHECK(points * 2 == static_cast<int>(points * 2));
    if (!Testing()) CHECK(points == 0);
  }

  void CheckMenus() const {
    const DeckWindow& deck = Deck();
    const CardMode mode = fixture_.state.deck.mode;
    CHECK(deck.study.Checked() == (mode == kStudyMode));
    CHECK(deck.quiz.Checked() == (mode == kQuizMode));
    CHECK(deck.test.Checked() == (mode == kTestMode));
    CHECK(deck.fileMenu.Enabled() == (mode == kStudyMode));
    CHECK(deck.utilityMenu.Enabled() == (mode == kStudyMode));
    CHECK(deck.deleteCard.Enabled() == (fixture_.state.deck.cardCount > 0));
    constexpr TextView kMarks[] = {u"[STUDY]", u"[QUIZ]", u"[TEST]"};
    CHECK(deck.Caption() == u"  " + Text(kMarks[static_cast<std::size_t>(mode)]));
    if (!Testing() || !Extended()) CHECK_FALSE(deck.nextOrScore.Enabled());
  }

  void CheckPlace() const {
    const ProgramState& state = fixture_.state;
    CHECK(Deck().Visible());
    CHECK(state.deck.currentCard >= (state.deck.cardCount == 0 ? 0 : 1));
    if (state.deck.mode != kQuizMode) CHECK(state.deck.currentCard <= state.deck.cardCount);
    CHECK(Deck().card.CardNumber() == DecimalText(state.deck.currentCard));
    CHECK(Deck().card.CardTotal() == DecimalText(state.deck.cardCount));
    CHECK_FALSE(fixture_.windows.ExitStatus());
  }

  [[nodiscard]] const DeckWindow& Deck() const { return fixture_.deck.Instance(); }
  [[nodiscard]] bool Testing() const { return fixture_.state.deck.mode == kTestMode; }
  [[nodiscard]] bool Extended() const { return fixture_.state.deck.kind == kExtendedDeck; }

  std::mt19937 random_;
  DeckFixture fixture_;
  int cards_;
  std::vector<Step> steps_;
  std::string trace_;
  bool frontOnShow_ = false;
};

}  // namespace

TEST_CASE("a walk of thousands of steps at random keeps the window in order") {
  for (const bool extended : {false, true}) {
    unsigned seed = 1;
    for (int steps = 0; steps < kSteps; ++seed) {
      Walk walk(extended, static_cast<int>(1 + seed % 7), seed);
      CAPTURE(extended);
      CAPTURE(seed);
      for (int at = 0; at < kSteps / 4 && !walk.Over(); ++at, ++steps) walk.TakeStep();
    }
  }
}

}  // namespace tessara::test
