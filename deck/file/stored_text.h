#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace tessara {

// How a text lies in a field of the deck file: in the code page, or as UTF-8 behind a signature.
// docs/deck-format.md has the rules.

/// What fills up a text's field.
inline constexpr char kBlank = ' ';

/// A text for a field of so many bytes.
struct StoredText {
  std::string bytes;  ///< without the blanks that fill the field up
  Text cut;           ///< the end of the text, which the field has no room for
};

[[nodiscard]] StoredText StoreText(TextView text, std::size_t width, const CodePage& codePage);

/// The text of a whole field, without the blanks at its ends.
[[nodiscard]] Text ReadText(std::string_view field, const CodePage& codePage);

/// How many characters, as a reader sees them, a text loses in a field of so many bytes. Blanks at
/// its end don't count: no load brings them back.
[[nodiscard]] std::size_t CharactersCut(TextView text, std::size_t width, const CodePage& codePage);
/// True where the field has no room for one more character as long as the text's longest: perhaps
/// the text that it comes from was cut.
[[nodiscard]] bool FillsField(TextView text, std::size_t width, const CodePage& codePage);

/// How many characters are cut, for the texts of a box. The code page outlives the box.
[[nodiscard]] std::function<std::size_t(const Text&)> CutIn(std::size_t width,
                                                            const CodePage& codePage);

}  // namespace tessara
