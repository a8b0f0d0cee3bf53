#include "authoring/save_edited_card.h"

#include "authoring/question_builder.h"
#include "authoring/text_card_builder.h"
#include "deck/card_type.h"
#include "machine/message_box.h"

namespace tessara {

namespace {

/// Asks, and on Yes runs the save on the current card.
template <class Save>
bool SaveEditedCard(const Button& button, AppContext& app, const Save& save) {
  if (!button.Enabled()) return false;
  const MessageAnswer answer =
      app.machine.messages.Show(u"This card has been changed. Do you want to save these changes?",
                                kYesNo, Text(kProgramName));
  if (answer != MessageAnswer::kYes) return false;
  if (app.state.deck.currentCard == 0) app.state.deck.currentCard = 1;
  save();
  // Before the box: the deck is kept then, should the program end while it is up.
  app.state.deck.changed = true;
  app.machine.messages.Show(u"Changes Saved!", kOkOnly, Text(kProgramName));
  app.state.deck.saveOffered = true;
  return true;
}

}  // namespace

bool SaveEditedQuestion(QuestionBuilder& builder, AppContext& app) {
  const Button& button = builder.buttons[kAddButton];
  return SaveEditedCard(button, app, [&] {
    builder.ChangeCurrentCard(app.state.deck.currentCard, builder.ChosenType());
    if (button.Caption() != u"&Change") ++app.state.deck.cardCount;
  });
}

bool SaveEditedText(TextCardBuilder& builder, AppContext& app) {
  return SaveEditedCard(builder.buttons[kAddButton], app, [&] {
    builder.ChangeCurrentCard(app.state.deck.currentCard, Text(LetterOf(CardType::kText)));
  });
}

}  // namespace tessara
