#pragma once

#include "authoring/question_builder.h"
#include "authoring/text_card_builder.h"

namespace tessara {

/// Opens the builder of the deck's type over the deck window, which is hidden as long as it is
/// open. The builder loads under the guard: what it writes to its boxes is no edit.
void OpenBuilder(AppContext& app, Window<DeckWindow> deck, Window<TextCardBuilder> textBuilder,
                 Window<QuestionBuilder> questionBuilder);

}  // namespace tessara
