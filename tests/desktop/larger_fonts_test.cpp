// Every window under a desktop font of 20 per cent more than the one that the windows are made for.

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

#include "adapters/qt/look/caption_fit.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "shell/program.h"
#include "tests/desktop/event_loops.h"
#include "tests/support/program_desk.h"
#include "tests/support/window_tour.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr int kUsualFont = 13;
constexpr int kLargerFont = 16;
/// Of all windows together.
constexpr int kFewestCaptions = 90;

/// The desktop's font, for as long as a test takes.
class DesktopFont {
 public:
  explicit DesktopFont(int pixels) {
    QFont font = before_;
    font.setPixelSize(pixels);
    QApplication::setFont(font);
  }
  DesktopFont(const DesktopFont&) = delete;
  DesktopFont& operator=(const DesktopFont&) = delete;
  ~DesktopFont() { QApplication::setFont(before_); }

 private:
  QFont before_ = QApplication::font();
};

QSizeF RoomOf(const QWidget& widget, QStyle::SubElement element) {
  QStyleOptionButton option;
  option.initFrom(&widget);
  return widget.style()->subElementRect(element, &option, &widget).size();
}

/// The room of a caption; none for what has no caption.
QSizeF CaptionRoomOf(const QWidget& widget) {
  if (qobject_cast<const QPushButton*>(&widget))
    return RoomOf(widget, QStyle::SE_PushButtonContents);
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

/// Whether a caption, wrapped where need be, has room in the font that it is shown in.
bool Fits(const QWidget& widget) {
  const QSizeF room = CaptionRoomOf(widget);
  const FittedCaption fitted = FitCaption(CaptionOf(widget), widget.font(), room);
  const QSizeF size = QFontMetricsF(fitted.font).size(Qt::TextShowMnemonic, fitted.text);
  return fitted.font == widget.font() && size.width() <= room.width() &&
         size.height() <= room.height();
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
    CHECK(Fits(*widget));
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
  fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(20));
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
