#pragma once

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <iterator>
#include <vector>

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

/// All sizes take a while, and need every face: scripts/check_captions.sh asks for them.
inline bool TriesAllFonts() {
  return qEnvironmentVariableIsSet("TESSARA_ALL_FONTS");
}

/// Those of the faces that this machine has; all of them where all fonts are to be tried.
inline std::vector<const char*> Faces() {
  std::vector<const char*> faces(std::begin(kFaces), std::end(kFaces));
  std::erase_if(faces, [](const char* face) {
    return !TriesAllFonts() && !QFontDatabase::hasFamily(QString::fromLatin1(face));
  });
  return faces;
}

}  // namespace tessara::test
