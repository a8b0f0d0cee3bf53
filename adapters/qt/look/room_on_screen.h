#pragma once

#include <QGuiApplication>
#include <QScreen>
#include <QSize>

namespace tessara {

/// The largest size that a window can open in, in Qt's pixels: its border and its title stand
/// outside of it.
inline QSize RoomOnScreen() {
  constexpr QSize kBorder(16, 48);
  return QGuiApplication::primaryScreen()->availableSize() - kBorder;
}

}  // namespace tessara
