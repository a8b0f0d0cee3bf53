// A desktop that changes while windows are open.

#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <doctest/doctest.h>

#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/look/contrast.h"
#include "adapters/qt/windows/desktop_watch.h"
#include "tests/desktop/support/desktop_font.h"
#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("Windows that are open follow a larger font, and come back with the smaller one") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  fixture.dialog->Show();
  form.areaBox.UserEdit({0, 0, u"words"});
  Fixture::Settle();
  const auto sizes = [] {
    return std::vector<QSize>{Fixture::Of("Command2").size(), Fixture::Of("Text2").size(),
                              Fixture::Of("Command2", "frmDialog").size(),
                              Fixture::Top("frmDialog")->size()};
  };
  const std::vector<QSize> before = sizes();
  const int letters = Fixture::Of("Label1").font().pixelSize();
  Fixture::Top("MDIForm1")->resize(400, 300);
  {
    const DesktopFont font(20);
    Fixture::Settle();
    Fixture::Settle();
    CHECK(Fixture::Of("Label1").font().pixelSize() == qRound(letters * 1.5));
    CHECK(Fixture::Of<QPlainTextEdit>("Text2").toPlainText() == "words");
    CHECK(Fixture::Of("Text2").font().pixelSize() == qRound(letters * 1.5));
    CHECK(Fixture::Top("MDIForm1")->width() > 400);
    const std::vector<QSize> larger = sizes();
    for (std::size_t at = 0; at < before.size(); ++at) {
      CHECK(std::abs(larger[at].width() - before[at].width() * 1.5) <= 1);
      CHECK(std::abs(larger[at].height() - before[at].height() * 1.5) <= 1);
    }
  }
  Fixture::Settle();
  Fixture::Settle();
  CHECK(sizes() == before);
}

TEST_CASE("Windows that are open follow the desktop into the dark, with readable colours") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.label.SetForeColor(FixedColor(0, 0, 255));
  const QPalette before = QApplication::palette();
  const QColor dark(49, 54, 59);
  QPalette palette(dark);
  QApplication::setPalette(palette);
  Fixture::Settle();
  Fixture::Settle();
  const QColor text = Fixture::Of("Label1").palette().color(QPalette::WindowText);
  CHECK(ContrastOf(text, palette.color(QPalette::Window)) >= kReadableContrast);
  QApplication::setPalette(before);
  Fixture::Settle();
  Fixture::Settle();
  CHECK(Fixture::Of("Label1").palette().color(QPalette::WindowText) == QColor(0, 0, 255));
}

TEST_CASE("A desktop's palette gets links that are read, whatever its ground") {
  for (const QColor& ground : {QColor(49, 54, 59), QColor(Qt::black), QColor(Qt::white)}) {
    QPalette palette(ground);
    QApplication::style()->polish(palette);
    const QColor page = palette.color(QPalette::Base);
    CHECK(ContrastOf(palette.color(QPalette::Link), page) >= kReadableContrast);
    CHECK(ContrastOf(palette.color(QPalette::LinkVisited), page) >= kReadableContrast);
  }
}

TEST_CASE("Windows stay where and as large as the user has made them when only colours change") {
  Fixture fixture;
  fixture.ShowChild();
  fixture.dialog->Show();
  QWidget& frame = *Fixture::Top("MDIForm1");
  QWidget& dialog = *Fixture::Top("frmDialog");
  frame.resize(400, 300);
  dialog.move(dialog.pos() + QPoint(30, 20));
  Fixture::Settle();
  const QPoint place = dialog.pos();
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(49, 54, 59)));
  Fixture::Settle();
  Fixture::Settle();
  CHECK(frame.size() == QSize(400, 300));
  CHECK(dialog.pos() == place);
  QApplication::setPalette(before);
}

TEST_CASE("The backdrop is as large as the largest screen, also where things are smaller later") {
  const DesktopFont font(20);
  const QtDesktop desktop(nullptr);
  CHECK(desktop.ScreenWidth() == QGuiApplication::primaryScreen()->size().width());
  CHECK(desktop.ScreenHeight() == QGuiApplication::primaryScreen()->size().height());
}

TEST_CASE("A window hears once that it has come to another screen, of another density") {
  QWidget window;
  int heard = 0;
  const DesktopWatch watch(window, [&heard] { ++heard; });
  Fixture::Settle();
  heard = 0;
  emit window.windowHandle()->screenChanged(window.screen());
  emit window.screen()->logicalDotsPerInchChanged(192);
  CHECK(heard == 0);
  Fixture::Settle();
  CHECK(heard == 1);
}
