#include "adapters/qt/look/contrast.h"

#include <QLabel>
#include <QPalette>
#include <algorithm>
#include <doctest/doctest.h>

#include "tests/desktop/desk.h"

using namespace tessara;
using namespace tessara::test;

namespace {

const QColor kLight(239, 239, 239);
const QColor kDark(49, 54, 59);
const QColor kBlue(0, 0, 255);

/// The desktop's palette, for as long as a test takes.
class DesktopOfColor {
 public:
  explicit DesktopOfColor(const QColor& ground)
      : DesktopOfColor(ground, QPalette(ground).highlight().color()) {}
  DesktopOfColor(const QColor& ground, const QColor& highlight) {
    QPalette palette(ground);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Highlight, highlight);
    QApplication::setPalette(palette);
  }
  DesktopOfColor(const DesktopOfColor&) = delete;
  DesktopOfColor& operator=(const DesktopOfColor&) = delete;
  ~DesktopOfColor() { QApplication::setPalette(before_); }

 private:
  QPalette before_ = QApplication::palette();
};

/// The most that any pixel at the left edge of a control, half way down, stands out from the
/// ground.
double ContrastOfEdge(const char* control, const QColor& ground) {
  constexpr int kEdge = 3;
  const QImage picture = Desk::Of(control).grab().toImage();
  double most = 1;
  for (int x = 0; x < kEdge; ++x) {
    most = std::max(most, ContrastOf(picture.pixelColor(x, picture.height() / 2), ground));
  }
  return most;
}

QColor TextColorOf(const char* control) {
  return Desk::Of(control).palette().color(QPalette::WindowText);
}

}  // namespace

TEST_CASE("The contrast of two colours is counted from 1 to 21, whichever comes first") {
  CHECK(ContrastOf(Qt::white, Qt::black) == doctest::Approx(21));
  CHECK(ContrastOf(Qt::black, Qt::white) == doctest::Approx(21));
  CHECK(ContrastOf(kBlue, kBlue) == doctest::Approx(1));
  CHECK(ContrastOf(Qt::white, QColor(118, 118, 118)) == doctest::Approx(4.54).epsilon(0.01));
}

TEST_CASE("A colour that can be read stays; another keeps its hue and gets lighter or darker") {
  CHECK(ReadableOn(kLight, kBlue) == kBlue);
  const QColor colors[] = {kBlue,        {255, 0, 0}, {128, 0, 0}, {192, 0, 192},
                           {128, 64, 0}, {0, 0, 238}, Qt::black,   Qt::white};
  for (const QColor& ground : {kLight, kDark, QColor(Qt::black), QColor(Qt::white)}) {
    for (const QColor& color : colors) {
      CAPTURE(color.name().toStdString());
      const QColor readable = ReadableOn(ground, color);
      CHECK(ContrastOf(ground, readable) >= kReadableContrast);
      if (color.hslHue() >= 0) CHECK(std::abs(readable.hslHue() - color.hslHue()) <= 2);
    }
  }
}

TEST_CASE("A control's own colour is read on a dark desktop, and is as told on a light one") {
  for (const QColor& ground : {kLight, kDark}) {
    const DesktopOfColor desktop(ground);
    Desk desk;
    desk.ShowChild().Label1.SetForeColor(FixedColor(0, 0, 255));
    CHECK(ContrastOf(TextColorOf("Label1"), ground) >= kReadableContrast);
    CHECK((TextColorOf("Label1") == kBlue) == (ground == kLight));
  }
}

TEST_CASE("Unticked marks and the edges of what takes input are seen on every desktop") {
  for (const QColor& ground : {kLight, kDark, QColor(Qt::black), QColor(Qt::white)}) {
    CAPTURE(ground.name().toStdString());
    const DesktopOfColor desktop(ground);
    Desk desk;
    desk.ShowChild();
    for (const char* name :
         {"Check1", "Option1(0)", "Command2", "Combo1", "Text1", "Text2", "List1"}) {
      CAPTURE(std::string(name));
      for (const bool focused : {false, true}) {
        CAPTURE(focused);
        if (focused) Desk::Of(name).setFocus(Qt::TabFocusReason);
        CHECK(ContrastOfEdge(name, ground) >= kVisibleContrast);
      }
    }
  }
}

TEST_CASE("The focus of a card is seen on its paper, whatever the desktop's highlight") {
  const DesktopOfColor desktop(kDark, QColor(61, 174, 233));
  Desk desk;
  desk.ShowChild();
  QWidget& card = Desk::Of("Painting1");
  card.setFocus(Qt::TabFocusReason);
  const QImage picture = card.grab().toImage();
  constexpr int kInLine = 4;
  const QColor line = picture.pixelColor(kInLine, picture.height() / 2);
  CHECK(ContrastOf(line, Qt::white) >= kVisibleContrast);
}
