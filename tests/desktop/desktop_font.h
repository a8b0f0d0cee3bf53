#pragma once

#include <QApplication>
#include <QFont>

namespace tessara::test {

/// The desktop's font, for as long as a test takes.
class DesktopFont {
 public:
  explicit DesktopFont(int pixels) {
    QFont font = before_;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
  }
  DesktopFont(const QString& family, int points) {
    QFont font(family);
    font.setPixelSize(qRound(points * kPixelsPerInch / kPointsPerInch));
    QApplication::setFont(font);
  }
  DesktopFont(const DesktopFont&) = delete;
  DesktopFont& operator=(const DesktopFont&) = delete;
  ~DesktopFont() { QApplication::setFont(before_); }

 private:
  static constexpr double kPixelsPerInch = 96;
  static constexpr double kPointsPerInch = 72;

  QFont before_ = QApplication::font();
};

/// The faces that the desktops of Debian come with.
inline const char* const kFaces[] = {"DejaVu Sans", "Liberation Sans", "Noto Sans", "Cantarell",
                                     "Inter"};

}  // namespace tessara::test
