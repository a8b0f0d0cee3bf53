#pragma once

namespace tessara {

/// Gives the variable the value. True where it had another one before: so a setter tells the screen
/// of what has changed, and of nothing else.
///
///     if (Assign(caption_, caption)) Changed(Aspect::kCaption);
template <class T>
bool Assign(T& variable, const T& value) {
  if (variable == value) return false;
  variable = value;
  return true;
}

}  // namespace tessara
