#pragma once

#include "deck/app_context.h"

namespace tessara {

class frmEssay;
class frmQuestion;

/// The prompt about a changed card when a builder closes: nothing is asked where its add button
/// is off. True where the card was saved. The answer lines are not checked here.
bool SaveEditedQuestion(frmQuestion& builder, AppContext& app);
bool SaveEditedText(frmEssay& builder, AppContext& app);

}  // namespace tessara
