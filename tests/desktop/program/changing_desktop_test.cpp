// A desktop that changes while windows are open.

#include <QLabel>
#include <QPlainTextEdit>
#include <doctest/doctest.h>

#include "adapters/qt/look/contrast.h"
#include "tests/desktop/support/desk.h"
#include "tests/desktop/support/desktop_font.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("Windows that are open follow a larger font, and come back with the smaller one") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  desk.dialog->Show();
  form.areaBox.UserEdit({0, 0, u"words"});
  Desk::Settle();
  const auto sizes = [] {
    return std::vector<QSize>{Desk::Of("Command2").size(), Desk::Of("Text2").size(),
                              Desk::Of("Command2", "frmDialog").size(),
                              Desk::Top("frmDialog")->size()};
  };
  const std::vector<QSize> before = sizes();
  const int letters = Desk::Of("Label1").font().pixelSize();
  Desk::Top("MDIForm1")->resize(400, 300);
  {
    const DesktopFont font(20);
    Desk::Settle();
    Desk::Settle();
    CHECK(Desk::Of("Label1").font().pixelSize() == qRound(letters * 1.5));
    CHECK(Desk::Of<QPlainTextEdit>("Text2").toPlainText() == "words");
    CHECK(Desk::Of("Text2").font().pixelSize() == qRound(letters * 1.5));
    CHECK(Desk::Top("MDIForm1")->width() > 400);
    const std::vector<QSize> larger = sizes();
    for (std::size_t at = 0; at < before.size(); ++at) {
      CHECK(std::abs(larger[at].width() - before[at].width() * 1.5) <= 1);
      CHECK(std::abs(larger[at].height() - before[at].height() * 1.5) <= 1);
    }
  }
  Desk::Settle();
  Desk::Settle();
  CHECK(sizes() == before);
}

TEST_CASE("Windows that are open follow the desktop into the dark, with readable colours") {
  Desk desk;
  SampleForm& form = desk.ShowChild();
  form.label.SetForeColor(FixedColor(0, 0, 255));
  const QPalette before = QApplication::palette();
  const QColor dark(49, 54, 59);
  QPalette palette(dark);
  QApplication::setPalette(palette);
  Desk::Settle();
  Desk::Settle();
  const QColor text = Desk::Of("Label1").palette().color(QPalette::WindowText);
  CHECK(ContrastOf(text, palette.color(QPalette::Window)) >= kReadableContrast);
  QApplication::setPalette(before);
  Desk::Settle();
  Desk::Settle();
  CHECK(Desk::Of("Label1").palette().color(QPalette::WindowText) == QColor(0, 0, 255));
}
