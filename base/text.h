#pragma once

#include <string>
#include <string_view>

namespace tessara {

/// Text inside the program: one character is one UTF-16 unit. A line break is CR LF.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr char16_t kCarriageReturn = u'\r';
inline constexpr char16_t kLineFeed = u'\n';
inline constexpr TextView kLineBreak = u"\r\n";

/// Removes blanks (U+0020) at both ends, and nothing else.
[[nodiscard]] TextView Trimmed(TextView text);

/// Upper case of the letters of Latin, Greek and Cyrillic single-byte code pages.
[[nodiscard]] Text UpperCase(TextView text);

/// The decimal digits of a whole number, with a minus sign where it is negative.
[[nodiscard]] Text DecimalText(long value);

/// The text with every line break, lone carriage returns and line feeds included, as CR LF.
[[nodiscard]] Text WithLineBreaks(TextView text);

}  // namespace tessara
