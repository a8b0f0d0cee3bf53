#pragma once

#include "base/text.h"

namespace tessara {

// A vocabulary file has dates as "2026-11-22", a deck as "11/22/2026". What is neither stays as it
// is.

[[nodiscard]] Text DeckDateOf(const Text& kvtmlDate);
[[nodiscard]] Text KvtmlDateOf(const Text& deckDate);

}  // namespace tessara
