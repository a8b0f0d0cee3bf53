// What decks and texts say is shown by real widgets letter by letter: no widget takes it for
// markup.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QTreeWidget>
#include <doctest/doctest.h>

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "base/utf8.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/support/hostile_texts.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

const Text kDeck = u"/decks/birds.tsr";

/// The whole program on screen with a deck that says the text.
struct Screen {
  FakeMachine fakes;
  Machine machine = fakes.Get();
  Program program{machine};
  QtRenderer renderer{program.Windows(), TESSARA_TEST_PICTURES};

  Screen(const Text& text, TextView type) {
    StartAnew();
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
    fakes.files.Put(kDeck, DeckSaying(text, type));
    program.Main(kDeck);
    QApplication::processEvents();
  }

  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  template <class W = QWidget>
  static W& Of(const char* control) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() != QLatin1String(control)) continue;
      if (auto* found = qobject_cast<W*>(widget)) return *found;
    }
    throw std::logic_error(std::string("no widget ") + control);
  }
  /// Pixels of the widget that are darker than paper.
  static int InkOf(QWidget& widget) {
    const QImage image = widget.grab().toImage();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) ink += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
    }
    return ink;
  }
};

int InkOnCard(TextView text) {
  const Screen screen(Text(text), u"E");
  return Screen::InkOf(Screen::Of("NoteletCtl1"));
}

void CheckNoWidgetReadsMarkup() {
  for (const QWidget* widget : QApplication::allWidgets()) {
    CAPTURE(widget->objectName().toStdString());
    CHECK(qobject_cast<const QTextEdit*>(widget) == nullptr);
    CHECK(widget->toolTip().isEmpty());
    CHECK(widget->whatsThis().isEmpty());
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      CHECK((label->text().isEmpty() || label->textFormat() == Qt::PlainText));
      CHECK_FALSE(label->openExternalLinks());
    }
  }
}

}  // namespace

TEST_CASE("Markup on a card is drawn letter by letter") {
  struct Case {
    TextView marked;
    TextView plain;
  };
  for (const Case& c : {Case{u"<b>iiii</b>", u"iiii"}, Case{u"<!-- iiiiiiiiiiii -->", u"i"},
                        Case{u"&lt;", u"<"}, Case{u"<br><br>i", u"i"}}) {
    CHECK(InkOnCard(c.marked) > InkOnCard(c.plain) + 5);
  }
}

TEST_CASE("The texts of a question are on show letter by letter") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    Screen screen(text, u"M");
    const QString shown = ToQString(text);
    QString doubled = shown;
    doubled.replace("&", "&&");
    CHECK(Screen::Of<QLabel>("Label2").text().contains(doubled));
    CheckNoWidgetReadsMarkup();
    screen.Deck().test.Press();
    for (const char* const option : {"Option1(0)", "Option1(1)", "Option1(2)", "Option1(3)"}) {
      CHECK(Screen::Of<QAbstractButton>(option).text() == shown);
    }
    CheckNoWidgetReadsMarkup();
  }
}

TEST_CASE("The texts of a deck are in the text boxes letter by letter") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    Screen screen(text, u"E");
    screen.Deck().deckInfo.Press();
    QApplication::processEvents();
    CHECK(Screen::Of<QLineEdit>("Text1(0)").text().trimmed() == ToQString(text));
    CheckNoWidgetReadsMarkup();
    screen.program.InfoWindow()->UserClose();
    screen.Deck().createOrEditCard.Press();
    QApplication::processEvents();
    CHECK(Screen::Of<QPlainTextEdit>("Text1(0)").toPlainText() == ToQString(text));
    CheckNoWidgetReadsMarkup();
  }
}

TEST_CASE("The texts of cards are in the list to print letter by letter") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    Screen screen(text, u"E");
    screen.Deck().printDeck.Press();
    QApplication::processEvents();
    const QTreeWidgetItem* const item = Screen::Of<QTreeWidget>("ListView1").topLevelItem(0);
    CHECK(item->text(1).contains(ToQString(text)));
    CHECK(item->toolTip(1).isEmpty());
    CheckNoWidgetReadsMarkup();
  }
}

TEST_CASE("The names of decks are in the title letter by letter") {
  for (const Text& name : kHostileNames) {
    CAPTURE(ToUtf8(name));
    Screen screen(u"front", u"E");
    const Text path = u"/decks/" + name;
    screen.fakes.files.Put(path, DeckSaying(u"front", u"E"));
    screen.fakes.dialogs.files = {path};
    screen.Deck().openDeck.Press();
    QApplication::processEvents();
    CHECK(Screen::Of("frmMain").windowTitle() == TitleForQt(screen.Deck().Caption()));
    CheckNoWidgetReadsMarkup();
  }
}

}  // namespace tessara::test
