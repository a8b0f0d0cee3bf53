// The captions of every window, in the fonts of a user's desktop.

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTimer>
#include <doctest/doctest.h>
#include <vector>

#include "adapters/qt/look/caption_fit.h"
#include "adapters/qt/text/pixel_scale.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "shell/program.h"
#include "tests/desktop/support/desktop_font.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/support/program_fixture.h"
#include "tests/support/window_tour.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr int kUsualFont = 13;
constexpr int kLargerFont = 16;
/// Of all windows together.
constexpr int kFewestCaptions = 90;

QSizeF RoomOf(const QWidget& widget, QStyle::SubElement element) {
  QStyleOptionButton option;
  option.initFrom(&widget);
  return widget.style()->subElementRect(element, &option, &widget).size();
}

/// What a button keeps free at either side of its caption.
int ButtonSide() {
  return PixelScale::OfDesktop().FromTwips(45);
}

/// The room of a caption; none for what has no caption.
QSizeF CaptionRoomOf(const QWidget& widget) {
  if (qobject_cast<const QPushButton*>(&widget))
    return RoomOf(widget, QStyle::SE_PushButtonContents) - QSizeF(2 * ButtonSide(), 0);
  if (qobject_cast<const QCheckBox*>(&widget)) return RoomOf(widget, QStyle::SE_CheckBoxContents);
  if (qobject_cast<const QRadioButton*>(&widget))
    return RoomOf(widget, QStyle::SE_RadioButtonContents);
  return qobject_cast<const QLabel*>(&widget) ? QSizeF(widget.size()) : QSizeF();
}

QString CaptionOf(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return button != nullptr ? button->text() : label != nullptr ? label->text() : QString();
}

/// How much of the widget's width a neighbour in front of it covers, half way down.
int CoveredOf(const QWidget& widget) {
  const QRect own = widget.geometry();
  int end = own.right();
  bool inFront = false;
  for (const QObject* child : widget.parentWidget()->children()) {
    const auto* other = qobject_cast<const QWidget*>(child);
    if (inFront && other != nullptr && other->isVisible()) {
      const QRect place = other->geometry();
      const bool covers = place.left() > own.left() && place.left() <= end &&
                          place.top() <= own.center().y() && own.center().y() <= place.bottom();
      if (covers) end = place.left() - 1;
    }
    inFront = inFront || child == &widget;
  }
  return own.right() - end;
}

/// What of the caption is not seen in the font that it is shown in, in words; empty for none.
std::string FaultOf(const QWidget& widget) {
  const bool isLabel = qobject_cast<const QLabel*>(&widget) != nullptr;
  const CaptionPlace place = isLabel ? CaptionPlace::kFromTop : CaptionPlace::kInMiddle;
  const QSizeF room = CaptionRoomOf(widget) - QSizeF(CoveredOf(widget), 0);
  const FittedCaption fitted = FitCaption(CaptionOf(widget), widget.font(), room, place);
  if (CaptionOf(widget).isEmpty()) return {};
  if (fitted.font != widget.font()) return "the font is too large";
  const QFontMetricsF metrics(fitted.font);
  const QSizeF size = metrics.size(Qt::TextShowMnemonic, fitted.text);
  if (size.width() > room.width()) return "too wide";
  const QStringList lines = fitted.text.split(u'\n');
  const double top = (isLabel ? 0 : (room.height() - size.height()) / 2) - fitted.rise;
  const double firstBaseline = top + metrics.ascent();
  const double oneLine = metrics.size(Qt::TextShowMnemonic, lines.back()).height();
  const double lastBaseline = firstBaseline + size.height() - oneLine;
  if (firstBaseline + metrics.tightBoundingRect(lines.front()).top() < 0) return "cut above";
  const double bottom = metrics.tightBoundingRect(lines.back()).bottom();
  return lastBaseline + bottom > room.height() + 0.5 ? "cut below" : "";
}

int CheckCaptions() {
  QApplication::processEvents();
  int captions = 0;
  for (const QWidget* widget : QApplication::allWidgets()) {
    if (!widget->isVisible() || CaptionRoomOf(*widget).isEmpty()) continue;
    ++captions;
    CAPTURE(widget->window()->objectName().toStdString());
    CAPTURE(widget->objectName().toStdString());
    CAPTURE(CaptionOf(*widget).toStdString());
    CHECK(FaultOf(*widget) == "");
  }
  return captions;
}

/// What is seen of the captions of all windows, by the windows' own forms.
int CheckEveryWindow() {
  StartAnew();
  FakeMachine fakes;
  Machine machine = fakes.Get();
  Program program{machine};
  QtRenderer renderer{program.Windows(), TESSARA_TEST_PICTURES};
  program.Windows().SetRenderer(renderer);
  fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(20));
  program.Main(u"/decks/birds.tsr");
  int captions = CheckCaptions();
  WindowTour tour{program, fakes, [&] {
                    QTimer::singleShot(0, qApp, [&] {
                      captions += CheckCaptions();
                      program.SeparationSteps()->UserClose();
                    });
                  }};
  tour.atWindow = [&] { captions += CheckCaptions(); };
  tour.GoRound();
  CHECK(tour.visits == kVisitsOfRound);
  return captions;
}

}  // namespace

TEST_CASE("No caption of any window is clipped with fonts 20 per cent larger") {
  for (const int pixels : {kUsualFont, kLargerFont}) {
    CAPTURE(pixels);
    const DesktopFont font(pixels);
    CHECK(CheckEveryWindow() > kFewestCaptions);
  }
}

TEST_CASE("No caption of any window is cut or covered in the faces of the desktops") {
  for (const char* family : Faces()) {
    for (const int points :
         TriesAllFonts() ? std::vector<int>{9, 10, 12, 18} : std::vector<int>{10}) {
      CAPTURE(family);
      CAPTURE(points);
      const DesktopFont font(family, points);
      CHECK(CheckEveryWindow() > kFewestCaptions);
    }
  }
}
