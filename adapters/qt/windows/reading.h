#pragma once

#include <QString>

#include "forms/form.h"

namespace tessara {

/// What a user reads in the window before the next step: what paints itself and the texts on
/// pictures, as far as they are on show. Empty where there is nothing of the kind.
[[nodiscard]] QString ReadingOf(const Form& form);

}  // namespace tessara
