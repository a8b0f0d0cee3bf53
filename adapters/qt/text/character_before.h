#pragma once

#include <QString>

namespace tessara {

/// Where the character begins, as a reader sees one, that ends at the place.
[[nodiscard]] qsizetype CharacterBefore(const QString& text, qsizetype place);

}  // namespace tessara
