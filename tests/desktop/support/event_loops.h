#pragma once

#include <QCoreApplication>
#include <QTimer>

namespace tessara::test {

/// A program that has ended lets no event loop run any more; the next test is a program of its own.
inline void StartAnew() {
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
}

}  // namespace tessara::test
