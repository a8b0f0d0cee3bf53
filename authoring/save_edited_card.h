#pragma once

#include "deck/app_context.h"

namespace tessara {

class TextCardBuilder;
class QuestionBuilder;

/// The prompt about a changed card when a builder closes: nothing is asked where its add button
/// is off. True where the card was saved. The answer lines are not checked here.
bool SaveEditedQuestion(QuestionBuilder& builder, AppContext& app);
/// The same for a text card, whose own builder asks in other words.
bool SaveEditedText(TextCardBuilder& builder, AppContext& app);

}  // namespace tessara
