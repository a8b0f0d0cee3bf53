#include "adapters/qt/look/contrast.h"

#include <QLabel>
#include <QPalette>
#include <algorithm>
#include <doctest/doctest.h>

#include "tests/desktop/support/fixture.h"

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

/// High contrast as desktops offer it, and the plain light and dark.
struct Scheme {
  const char* name;
  QColor ground;
  QColor text;
  QColor highlight;
};
const Scheme kSchemes[] = {{"yellow on black", Qt::black, QColor(255, 255, 0), QColor(0, 128, 0)},
                           {"white on black", Qt::black, Qt::white, QColor(26, 235, 255)},
                           {"light", kLight, Qt::black, QColor(61, 174, 233)},
                           {"dark", kDark, QColor(239, 240, 241), QColor(61, 174, 233)}};

class DesktopOfScheme {
 public:
  explicit DesktopOfScheme(const Scheme& scheme) {
    QPalette palette(scheme.ground);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
      palette.setColor(role, scheme.ground);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, scheme.text);
    }
    palette.setColor(QPalette::Highlight, scheme.highlight);
    QApplication::setPalette(palette);
  }
  DesktopOfScheme(const DesktopOfScheme&) = delete;
  DesktopOfScheme& operator=(const DesktopOfScheme&) = delete;
  ~DesktopOfScheme() { QApplication::setPalette(before_); }

 private:
  QPalette before_ = QApplication::palette();
};

/// The most that a pixel of the picture stands out from the ground.
double MostContrast(const QImage& picture, const QColor& ground) {
  double most = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      most = std::max(most, ContrastOf(picture.pixelColor(x, y), ground));
    }
  }
  return most;
}

/// The most that any pixel at the left edge of a control, half way down, stands out from the
/// ground.
double ContrastOfEdge(const char* control, const QColor& ground) {
  constexpr int kEdge = 3;
  const QImage picture = Fixture::Of(control).grab().toImage();
  double most = 1;
  for (int x = 0; x < kEdge; ++x) {
    most = std::max(most, ContrastOf(picture.pixelColor(x, picture.height() / 2), ground));
  }
  return most;
}

QColor TextColorOf(const char* control) {
  return Fixture::Of(control).palette().color(QPalette::WindowText);
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
    Fixture fixture;
    fixture.ShowChild().label.SetForeColor(FixedColor(0, 0, 255));
    CHECK(ContrastOf(TextColorOf("Label1"), ground) >= kReadableContrast);
    CHECK((TextColorOf("Label1") == kBlue) == (ground == kLight));
  }
}

TEST_CASE("Unticked marks and the edges of what takes input are seen on every desktop") {
  for (const QColor& ground : {kLight, kDark, QColor(Qt::black), QColor(Qt::white)}) {
    CAPTURE(ground.name().toStdString());
    const DesktopOfColor desktop(ground);
    Fixture fixture;
    fixture.ShowChild();
    for (const char* name :
         {"Check1", "Option1(0)", "Command2", "Combo1", "Text1", "Text2", "List1"}) {
      CAPTURE(std::string(name));
      for (const bool focused : {false, true}) {
        CAPTURE(focused);
        if (focused) Fixture::Of(name).setFocus(Qt::TabFocusReason);
        CHECK(ContrastOfEdge(name, ground) >= kVisibleContrast);
      }
    }
  }
}

TEST_CASE("The focus of a card is seen on its paper, whatever the desktop's highlight") {
  const DesktopOfColor desktop(kDark, QColor(61, 174, 233));
  Fixture fixture;
  fixture.ShowChild();
  QWidget& card = Fixture::Of("Painting1");
  card.setFocus(Qt::TabFocusReason);
  const QImage picture = card.grab().toImage();
  constexpr int kInLine = 4;
  const QColor line = picture.pixelColor(kInLine, picture.height() / 2);
  CHECK(ContrastOf(line, Qt::white) >= kVisibleContrast);
}

TEST_CASE("Titles of windows in the frame are read in every scheme, in front and behind") {
  for (const Scheme& scheme : kSchemes) {
    CAPTURE(scheme.name);
    const DesktopOfScheme desktop(scheme);
    Fixture fixture;
    fixture.ShowChild().SetCaption(u"MMMMMMMM");
    fixture.other->Show();
    fixture.other->SetCaption(u"MMMMMMMM");
    Fixture::Settle();
    for (const char* name : {"frmChild", "frmOther"}) {
      CAPTURE(name);
      QWidget& window = *Fixture::Top(name);
      const int height = window.contentsMargins().top();
      // The middle of the title: its letters, and no button.
      const QImage title =
          window.grab({window.width() / 3, 6, window.width() / 3, height - 10}).toImage();
      // Where the title has no letters, just below its upper edge.
      const QColor ground = window.grab({window.width() / 2, 4, 1, 1}).toImage().pixelColor(0, 0);
      CHECK(MostContrast(title, ground) >= kReadableContrast);
    }
  }
}

TEST_CASE("Close boxes and edges of windows are seen in every scheme, in front and behind") {
  for (const Scheme& scheme : kSchemes) {
    CAPTURE(scheme.name);
    const DesktopOfScheme desktop(scheme);
    Fixture fixture;
    fixture.ShowChild();
    fixture.other->Show();
    Fixture::Settle();
    for (const char* name : {"frmChild", "frmOther"}) {
      CAPTURE(name);
      const QImage window = Fixture::Top(name)->grab().toImage();
      const int middle = Fixture::Top(name)->contentsMargins().top() / 2 + 1;
      const QColor ground = window.pixelColor(window.width() / 2, 4);
      const QImage cross = window.copy(window.width() - 19, middle - 4, 8, 8);
      CHECK(MostContrast(cross, ground) >= kVisibleContrast);
      const QImage edge = window.copy(0, window.height() / 2, 2, 1);
      CHECK(MostContrast(edge, scheme.ground) >= kVisibleContrast);
    }
  }
}

TEST_CASE("Set marks, edges of boxes, frames of groups and lines are seen in every scheme") {
  for (const Scheme& scheme : kSchemes) {
    CAPTURE(scheme.name);
    const DesktopOfScheme desktop(scheme);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    form.check.SetTicked(true);
    form.options[0].SetSelected(true);
    form.check.SetFocus();  // away from the boxes, whose edge it colours
    for (const char* name : {"Check1", "Option1(0)"}) {
      CAPTURE(name);
      const QImage picture = Fixture::Of(name).grab().toImage();
      // Inside the outline of the mark.
      const QRect mark(4, picture.height() / 2 - 3, 7, 7);
      const QColor inside = picture.pixelColor(3, picture.height() / 2);
      CHECK(MostContrast(picture.copy(mark), inside) >= kVisibleContrast);
    }
    for (const char* name : {"Text1", "Text2", "List1", "Combo1", "Frame1", "Line1"}) {
      CAPTURE(name);
      CHECK(ContrastOfEdge(name, scheme.ground) >= kVisibleContrast);
    }
  }
}

TEST_CASE(
    "Coloured captions are read in every scheme, in the colour itself where it reaches that") {
  const Color colors[] = {FixedColor(0, 0, 255), FixedColor(255, 0, 0), FixedColor(128, 0, 0),
                          FixedColor(0, 0, 238)};
  for (const Scheme& scheme : kSchemes) {
    CAPTURE(scheme.name);
    const DesktopOfScheme desktop(scheme);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    for (const Color& color : colors) {
      form.label.SetForeColor(color);
      const QColor told(color.red, color.green, color.blue);
      const QColor shown = TextColorOf("Label1");
      CHECK(ContrastOf(shown, scheme.ground) >= kReadableContrast);
      CHECK((shown == told) == (ContrastOf(told, scheme.ground) >= kReadableContrast));
      CHECK(std::abs(shown.hslHue() - told.hslHue()) <= 2);
    }
  }
}
