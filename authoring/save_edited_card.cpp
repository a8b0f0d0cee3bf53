#include "authoring/save_edited_card.h"

#include "authoring/frmEssay.h"
#include "authoring/frmQuestion.h"
#include "platform/message_box.h"

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
  if (app.state.CurrentCard == 0) app.state.CurrentCard = 1;
  save();
  app.machine.messages.Show(u"Changes Saved!", kOkOnly, Text(kProgramName));
  app.state.DeckChanged = true;
  app.state.SaveOffered = true;
  return true;
}

}  // namespace

bool SaveEditedQuestion(frmQuestion& builder, AppContext& app) {
  const Button& button = builder.Command2[kAddButton];
  return SaveEditedCard(button, app, [&] {
    builder.ChangeCurrentCard(app.state.CurrentCard, builder.ChosenType());
    if (button.Caption() != u"&Change") ++app.state.CardCount;
  });
}

bool SaveEditedText(frmEssay& builder, AppContext& app) {
  return SaveEditedCard(builder.Command1[kAddButton], app,
                        [&] { builder.ChangeCurrentCard(app.state.CurrentCard, u"E"); });
}

}  // namespace tessara
