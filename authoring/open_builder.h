#pragma once

#include "authoring/frmEssay.h"
#include "authoring/frmQuestion.h"

namespace tessara {

/// Opens the builder of the deck's type over the deck window, which is hidden as long as it is
/// open. The builder loads under the guard: what it writes to its boxes is no edit.
void OpenBuilder(AppContext& app, Window<frmMain> deck, Window<frmEssay> textBuilder,
                 Window<frmQuestion> questionBuilder);

}  // namespace tessara
