#pragma once

#include <QString>

#include "forms/controls/controls.h"

namespace tessara {

// The text of a form and the text that an edit widget shows. In a box of several lines CR LF is
// one line feed. Every other control character, a lone CR or LF among them, and what the widget
// would take for a border of its own, is shown as half a pair of surrogates, which no text has: so
// no place shifts, and the widget rewrites none of them.

/// A change of a widget's text: `removed` characters at `place` gave way to `inserted`.
struct ShownEdit {
  qsizetype place = 0;
  qsizetype removed = 0;
  QString inserted;
};

[[nodiscard]] QString ShownText(TextView text, bool multiLine);
/// The way back for what was inserted.
[[nodiscard]] Text TextOfShown(const QString& shown, bool multiLine);

/// The smallest change that turns one text into the other, in whole pairs of surrogates. Where
/// there are several, the one whose inserted text ends at the cursor: that is how the user made it.
[[nodiscard]] ShownEdit ChangeBetween(const QString& before, const QString& after,
                                      qsizetype cursor);

/// The user's change of a widget that showed `text`, counted in the characters of `text`.
[[nodiscard]] TextEdit UserChange(TextView text, const QString& after, qsizetype cursor,
                                  bool multiLine);

}  // namespace tessara
