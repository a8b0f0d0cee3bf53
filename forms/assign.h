#pragma once

namespace tessara {

/// Gives the variable the value. True where it had another one before.
template <class T>
bool Assign(T& variable, const T& value) {
  if (variable == value) return false;
  variable = value;
  return true;
}

}  // namespace tessara
