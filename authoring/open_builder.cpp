#include "authoring/open_builder.h"

#include "forms/place_in_frame.h"

namespace tessara {

void OpenBuilder(AppContext& app, Window<DeckWindow> deck, Window<TextCardBuilder> textBuilder,
                 Window<QuestionBuilder> questionBuilder) {
  app.state.building.fillingBoxes = true;
  if (app.state.deck.kind == kExtendedDeck) {
    PlaceInFrame(questionBuilder.Slot(), QuestionBuilder::kHeight, QuestionBuilder::kWidth);
  } else if (app.state.deck.kind == kStandardDeck) {
    PlaceInFrame(textBuilder.Slot(), TextCardBuilder::kHeight, TextCardBuilder::kWidth);
  }
  deck->Hide();
}

}  // namespace tessara
