// The start-up picture, the set-up window and the picture book in the whole program.

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <algorithm>
#include <doctest/doctest.h>

#include "adapters/qt/devices/qt_settings_store.h"
#include "tests/desktop/support/config_folder.h"
#include "tests/desktop/support/program_on_screen.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr char kSetUp[] = "FrmSetUp";
constexpr char kBook[] = "frmInstruct";
constexpr int kSteps = 6;
constexpr char kApply[] = "Command1(1)";
constexpr char kPlainStart[] = "[Settings]\nFirstLoad=False\nShowSplash=0\n";

QImage Picture(const std::string& file) {
  const QImage picture(QString::fromStdString(TESSARA_TEST_PICTURES "/" + file));
  REQUIRE_FALSE(picture.isNull());
  return picture.convertToFormat(QImage::Format_ARGB32);
}

QImage Grabbed(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

/// True where the picture stands at the top left corner of the screen; what it lets through may be
/// anything.
bool Shows(const QImage& screen, const QImage& picture, const QSize& size) {
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      const QRgb wanted = picture.pixel(x, y);
      if (qAlpha(wanted) == 255 && screen.pixel(x, y) != wanted) return false;
    }
  }
  return true;
}

bool Shows(QWidget& widget, const std::string& file) {
  const QImage picture = Picture(file);
  return widget.size() == picture.size() && Shows(Grabbed(widget), picture, picture.size());
}

/// The corner of the frame that no window covers.
bool BackdropIs(const std::string& file) {
  const QMdiArea& area = *ProgramOnScreen::Top("MDIForm1").findChild<QMdiArea*>();
  return Shows(Grabbed(*area.viewport()), Picture(file), {32, 32});
}

bool Enabled(const char* control, const char* window = kSetUp) {
  return ProgramOnScreen::Of(control, window).isEnabled();
}

bool IsOpen(const char* window) {
  const QWidgetList widgets = QApplication::allWidgets();
  return std::any_of(widgets.begin(), widgets.end(), [window](const QWidget* widget) {
    return widget->objectName() == QLatin1String(window);
  });
}

/// The set-up window belongs to the frame's own menu.
void OpenSetUp() {
  ProgramOnScreen::Alt(Qt::Key_C);
  ProgramOnScreen::ChooseByKeys("mnuFile", "mnuSetup");
}

QComboBox& Backdrops() {
  return ProgramOnScreen::Of<QComboBox>("Combo1", kSetUp);
}

QString Marked() {
  return Backdrops().view()->currentIndex().data().toString();
}

bool ListIsOpen() {
  return Backdrops().view()->isVisible();
}

/// A key opens the list, the arrows go to the name.
void MarkBackdrop(const QString& name) {
  Backdrops().setFocus();
  for (int steps = 0; Marked() != name && steps <= Backdrops().count(); ++steps) {
    ProgramOnScreen::Key(Qt::Key_Down);
  }
  REQUIRE(ListIsOpen());
}

void ChooseBackdrop(const QString& name) {
  MarkBackdrop(name);
  ProgramOnScreen::Key(Qt::Key_Return);
}

void Answer(ProgramOnScreen& fixture, QMessageBox::StandardButton answer) {
  fixture.WhenAsked([answer](QWidget& box) {
    QTest::mouseClick(qobject_cast<QMessageBox*>(&box)->button(answer), Qt::LeftButton);
  });
}

void Turn(const char* button, bool byKeys) {
  if (!byKeys) return ProgramOnScreen::Click(button, kBook);
  constexpr int kMostTabs = 4;
  for (int tabs = 0; ProgramOnScreen::Focus() != button && tabs < kMostTabs; ++tabs) {
    ProgramOnScreen::Key(Qt::Key_Tab);
  }
  ProgramOnScreen::Key(Qt::Key_Space);
}

void CheckStep(int step) {
  CAPTURE(step);
  const std::string number = std::to_string(step);
  CHECK(Shows(ProgramOnScreen::Of("Image1", kBook), "steps/" + number + ".png"));
  const QString text = ProgramOnScreen::Of<QLabel>("Label1", kBook).text();
  CHECK(text.startsWith(QString::fromStdString(number + ". ")));
  CHECK(Enabled("Command1(0)", kBook) == (step > 1));
  CHECK(Enabled("Command1(1)", kBook) == (step < kSteps));
}

const std::string kSaved =
    "The current settings have been saved. Any background changes will take effect the next time "
    "Tessara is executed.";
const std::string kQuestion = "Set-Up changes have been made, do you want to save them?";

}  // namespace

TEST_CASE("The start-up picture is on screen during the pause and gone with it") {
  const ConfigFolder config;
  config.Write("[Settings]\nFirstLoad=False\nShowSplash=1\n");
  QtSettingsStore settings(config.File());
  ProgramOnScreen fixture(settings);
  int pictures = 0;
  fixture.WhilePausing([&pictures] {
    if (pictures > 0) return;
    QApplication::processEvents();
    const QWidget& splash = ProgramOnScreen::Top("Splash");
    CHECK(splash.isVisible());
    CHECK(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
    CHECK(Shows(ProgramOnScreen::Of("Image1", "Splash"), "splash.png"));
    CHECK(ProgramOnScreen::Of("Image1", "Splash").accessibleName() == "Tessara 1.0");
    ++pictures;
  });
  fixture.Start();
  CHECK(pictures == 1);
  CHECK_FALSE(IsOpen("Splash"));
}

TEST_CASE(
    "A backdrop is seen before it is chosen, and what is applied is there at the next start") {
  const ConfigFolder config;
  config.Write(kPlainStart);
  {
    QtSettingsStore settings(config.File());
    ProgramOnScreen fixture(settings);
    fixture.Start();
    CHECK(BackdropIs("backdrops/DEFAULT.jpg"));
    CHECK(ProgramOnScreen::Card("CardColor") == "Q");
    OpenSetUp();
    CHECK_FALSE(Enabled(kApply));
    CHECK(Shows(ProgramOnScreen::Of("Image1", kSetUp), "backdrops/DEFAULT.jpg"));
    ChooseBackdrop("DESERT");
    CHECK(Shows(ProgramOnScreen::Of("Image1", kSetUp), "backdrops/DESERT.gif"));
    CHECK(Enabled(kApply));
    ChooseBackdrop("GRANITE");
    CHECK(Shows(ProgramOnScreen::Of("Image1", kSetUp), "backdrops/GRANITE.gif"));
    ProgramOnScreen::Click("Option1(1)", kSetUp);
    ProgramOnScreen::Click("Option2(0)", kSetUp);
    CHECK(config.Read() == kPlainStart);
    Answer(fixture, QMessageBox::Ok);
    ProgramOnScreen::Alt(Qt::Key_A);
    CHECK(fixture.TakeAsked() == std::vector{kSaved});
    CHECK_FALSE(Enabled(kApply));
    CHECK(BackdropIs("backdrops/DEFAULT.jpg"));
    ProgramOnScreen::Alt(Qt::Key_C);
    CHECK_FALSE(IsOpen(kSetUp));
    CHECK(fixture.TakeAsked().empty());
  }
  QtSettingsStore settings(config.File());
  ProgramOnScreen again(settings);
  again.Start();
  CHECK(BackdropIs("backdrops/GRANITE.gif"));
  CHECK_FALSE(BackdropIs("backdrops/DEFAULT.jpg"));
  CHECK(ProgramOnScreen::Card("CardColor") == "A");
  OpenSetUp();
  CHECK(ProgramOnScreen::Of<QComboBox>("Combo1", kSetUp).currentText() == "GRANITE");
  CHECK(ProgramOnScreen::Of<QAbstractButton>("Option1(1)", kSetUp).isChecked());
  CHECK(ProgramOnScreen::Of<QAbstractButton>("Option2(0)", kSetUp).isChecked());
}

TEST_CASE("A key on the closed list of backdrops opens it and chooses nothing") {
  ProgramOnScreen fixture;
  fixture.Start();
  OpenSetUp();
  for (const Qt::Key key :
       {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_G, Qt::Key_Less, Qt::Key_Space, Qt::Key_F4}) {
    CAPTURE(key);
    Backdrops().setFocus();
    ProgramOnScreen::Key(key);
    CHECK(ListIsOpen());
    ProgramOnScreen::Key(Qt::Key_Escape);
    CHECK_FALSE(ListIsOpen());
    CHECK(Backdrops().currentText() == "DEFAULT");
    CHECK_FALSE(Enabled(kApply));
  }
  ProgramOnScreen::Key(Qt::Key_Escape);
  CHECK(ProgramOnScreen::Focus() == "Combo1");
  ProgramOnScreen::Key(Qt::Key_Tab);
  CHECK_FALSE(ListIsOpen());
  CHECK(ProgramOnScreen::Focus() != "Combo1");
  CHECK(Backdrops().currentText() == "DEFAULT");
}

TEST_CASE("In the open list of backdrops only Return or a click chooses") {
  struct Case {
    const char* how;
    std::function<void()> leave;
    QString chosen;
  };
  const auto press = [](Qt::Key key, Qt::KeyboardModifier held = Qt::NoModifier) {
    return [key, held] { ProgramOnScreen::Key(key, held); };
  };
  const Case cases[] = {
      {"Escape", press(Qt::Key_Escape), "DEFAULT"},
      {"Tab", press(Qt::Key_Tab), "DEFAULT"},
      {"Space", press(Qt::Key_Space), "DEFAULT"},
      {"F4", press(Qt::Key_F4), "DEFAULT"},
      {"Alt+Up", press(Qt::Key_Up, Qt::AltModifier), "DEFAULT"},
      {"Alt+Down", press(Qt::Key_Down, Qt::AltModifier), "DEFAULT"},
      {"Return", press(Qt::Key_Return), "DESERT"},
      {"a click",
       [] {
         const QAbstractItemView& list = *Backdrops().view();
         QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                           list.visualRect(list.currentIndex()).center());
       },
       "DESERT"},
  };
  for (const Case& c : cases) {
    CAPTURE(std::string(c.how));
    ProgramOnScreen fixture;
    fixture.Start();
    OpenSetUp();
    MarkBackdrop("DESERT");
    c.leave();
    CHECK(Backdrops().currentText() == c.chosen);
    CHECK(Enabled(kApply) == (c.chosen != "DEFAULT"));
    Backdrops().hidePopup();
  }
}

TEST_CASE("Closing the set-up window with changes asks, and only Yes stores them") {
  for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
    CAPTURE(answer);
    const ConfigFolder config;
    config.Write(kPlainStart);
    QtSettingsStore settings(config.File());
    ProgramOnScreen fixture(settings);
    fixture.Start();
    OpenSetUp();
    ProgramOnScreen::Click("Check1", kSetUp);
    Answer(fixture, answer);
    Answer(fixture, QMessageBox::Ok);
    ProgramOnScreen::Click("Command1(0)", kSetUp);
    const bool yes = answer == QMessageBox::Yes;
    CHECK(fixture.TakeAsked() == (yes ? std::vector{kQuestion, kSaved} : std::vector{kQuestion}));
    CHECK_FALSE(IsOpen(kSetUp));
    CHECK(config.Read().contains("ShowSplash=1") == yes);
    CHECK((config.Read() == kPlainStart) != yes);
  }
}

TEST_CASE("The picture book is paged there and back, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.Start();
    fixture.WhenAsked([byKeys](QWidget&) {
      CheckStep(1);
      for (int step = 2; step <= kSteps; ++step) {
        Turn("Command1(1)", byKeys);
        CheckStep(step);
      }
      for (int step = kSteps - 1; step >= 1; --step) {
        Turn("Command1(0)", byKeys);
        CheckStep(step);
      }
      Turn("Command2", byKeys);
    });
    ProgramOnScreen::ChooseByKeys("mnuHelp", "mnuSC");
    CHECK(fixture.TakeAsked() == std::vector<std::string>{"Separating The Cards"});
    CHECK_FALSE(IsOpen(kBook));
  }
}
