#pragma once

#include <memory>
#include <vector>

#include "authoring/open_builder.h"
#include "tests/support/deck_fixture.h"

namespace tessara::test {

/// A fixture with the deck window and both builders, and the hand of the user at them.
struct BuilderFixture : DeckFixture {
  WindowSlot<TextCardBuilder> essaySlot{
      windows,
      [this] { return std::make_unique<TextCardBuilder>(app, Window<DeckWindow>(deckSlot)); }};
  WindowSlot<QuestionBuilder> questionSlot{
      windows,
      [this] { return std::make_unique<QuestionBuilder>(app, Window<DeckWindow>(deckSlot)); }};
  Window<TextCardBuilder> essay{essaySlot};
  Window<QuestionBuilder> question{questionSlot};

  /// The command of the deck window's file menu.
  void OpenBuilder() { tessara::OpenBuilder(app, deck, essay, question); }

  /// The text builder over cards "front 1", "back 1" and on.
  TextCardBuilder& OpenEssay(int cards = 0) {
    OpenStandardDeck(cards);
    OpenBuilder();
    return essay.Loaded();
  }
  /// The question builder over the cards that OpenExtendedDeck makes.
  QuestionBuilder& OpenQuestion(int cards = 0) {
    OpenExtendedDeck(cards);
    OpenBuilder();
    return question.Loaded();
  }
  /// The question builder over the cards that are in the table.
  QuestionBuilder& OpenQuestionOverTable() {
    Open(kExtendedDeck);
    OpenBuilder();
    return question.Loaded();
  }

  void Answer(MessageAnswer answer) { fakes.messages.answers.push_back(answer); }
  std::vector<FakeMessages::Shown> TakeBoxes() { return fakes.messages.Take(); }
  [[nodiscard]] Text Cell(int row, int column) const { return state.deck.Cell(row, column); }
};

/// One change that brings the box to the text.
inline void Replace(TextBox& box, const Text& text) {
  box.UserEdit({0, box.TextOf().size(), text});
}

/// Key by key, at the end of the text.
inline void Type(TextBox& box, const Text& keys) {
  for (const char16_t key : keys) {
    box.UserKeyPress(key);
    box.UserEdit({box.TextOf().size(), 0, Text(1, key)});
  }
}

/// Text of so many lines.
inline Text Lines(int count) {
  Text text = u"1";
  for (int line = 2; line <= count; ++line) text += u"\r\n" + DecimalText(line);
  return text;
}

/// What the four buttons and the two arrows of a builder look like.
struct ButtonsLook {
  bool newOn = false;
  bool addOn = false;
  bool cancelOn = false;
  bool previousOn = false;
  bool nextOn = false;
  Text addCaption;
  Text cancelCaption;
  friend bool operator==(const ButtonsLook&, const ButtonsLook&) = default;
};

inline ButtonsLook LookOf(const ControlArray<Button, 4>& buttons, const MoveButtons& arrows) {
  return {buttons[kNewButton].Enabled(),    buttons[kAddButton].Enabled(),
          buttons[kCancelButton].Enabled(), arrows[kPreviousCard].Enabled(),
          arrows[kNextCard].Enabled(),      buttons[kAddButton].Caption(),
          buttons[kCancelButton].Caption()};
}
inline ButtonsLook LookOf(const TextCardBuilder& window) {
  return LookOf(window.buttons, window.arrows);
}
inline ButtonsLook LookOf(const QuestionBuilder& window) {
  return LookOf(window.buttons, window.arrows);
}

inline const Text kAdd = u"&Add to deck";
inline const Text kChange = u"&Change";
inline const Text kCancel = u"&Cancel";
inline const Text kDelete = u"&Delete form deck";

inline const FakeMessages::Shown kChangedCardBox = {
    u"You have changed this card, do you want to save changes?", 36, u"Changed Card"};

}  // namespace tessara::test
