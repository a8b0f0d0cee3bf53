#include "authoring/open_builder.h"

#include "forms/place_in_frame.h"

namespace tessara {

void OpenBuilder(AppContext& app, Window<frmMain> deck, Window<frmEssay> textBuilder,
                 Window<frmQuestion> questionBuilder) {
  app.state.CardChanged = true;
  if (app.state.DeckType == kExtendedDeck) {
    PlaceInFrame(questionBuilder.Slot(), frmQuestion::kHeight, frmQuestion::kWidth, app.frame);
  } else if (app.state.DeckType == kStandardDeck) {
    PlaceInFrame(textBuilder.Slot(), frmEssay::kHeight, frmEssay::kWidth, app.frame);
  }
  deck->Hide();
}

}  // namespace tessara
