#include "adapters/qt/help/help_viewer.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QToolBar>
#include <QTreeWidget>
#include <doctest/doctest.h>

#include "adapters/qt/devices/help_loader.h"
#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_page.h"
#include "adapters/qt/help/show_help_contents.h"
#include "adapters/qt/look/contrast.h"
#include "base/utf8.h"
#include "tests/help/help_fixture.h"

namespace tessara::test {

namespace {

/// The help on show, closed in the end.
struct Shown {
  Shown() {
    ShowHelpContents(kHelpFile);
    REQUIRE(HelpWindows().size() == 1);
    window = HelpWindows().first();
    REQUIRE(QTest::qWaitForWindowActive(window));
    page = static_cast<HelpPage*>(window->findChild<QTextBrowser*>(QStringLiteral("HelpPage")));
    contents = window->findChild<QTreeWidget*>(QStringLiteral("HelpContents"));
    find = window->findChild<QLineEdit*>(QStringLiteral("HelpFind"));
    index = window->findChild<QListWidget*>(QStringLiteral("HelpIndex"));
  }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;
  ~Shown() { CloseHelpWindows(); }

  [[nodiscard]] QString PageName() const { return page->source().path().mid(1); }
  void Follow(const char* address) const {
    emit page->anchorClicked(QUrl(QString::fromUtf8(address)));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  QWidget* window = nullptr;
  HelpPage* page = nullptr;
  QTreeWidget* contents = nullptr;
  QLineEdit* find = nullptr;
  QListWidget* index = nullptr;
};

}  // namespace

TEST_CASE("the help comes up with its contents and its first page") {
  const Shown help;
  CHECK(help.window->windowTitle() == QStringLiteral("Tessara Help"));
  CHECK(help.PageName() == QStringLiteral("welcome.html"));
  CHECK(help.contents->isVisible());
  CHECK(help.contents->currentItem()->text(0) == QStringLiteral("Welcome to Tessara"));
  CHECK(help.page->toPlainText().contains(QStringLiteral("Tessara is a flash-card program")));
}

TEST_CASE("the help comes up no larger than the screen") {
  const Shown help;
  const QSize room = help.window->screen()->availableSize();
  REQUIRE(room.width() < 960);
  CHECK(help.window->width() <= room.width());
  CHECK(help.window->height() <= room.height());
}

TEST_CASE("every page has the spaces of the help's style sheet") {
  const Shown help;
  for (const SiteMapEntry& entry : ReadHelpBook(*BuiltHelp()).contents) {
    CAPTURE(entry.page);
    help.page->Open(HelpAddress(entry.page));
    const QTextBlockFormat heading = help.page->document()->firstBlock().blockFormat();
    CHECK(heading.topMargin() == 0);
    CHECK(heading.bottomMargin() == 8);
  }
}

TEST_CASE("every page can be reached by going down the contents with the keyboard") {
  const Shown help;
  help.contents->setFocus();
  QSet<QString> seen{help.PageName()};
  for (const QTreeWidgetItem* last = nullptr; last != help.contents->currentItem();) {
    last = help.contents->currentItem();
    help.Press(Qt::Key_Down);
    CHECK(help.page->toPlainText().startsWith(help.contents->currentItem()->text(0)));
    seen += help.PageName();
  }
  CHECK(seen.size() == ReadHelpBook(*BuiltHelp()).contents.size());
}

TEST_CASE("a link inside the help is followed, and marked in the contents") {
  const Shown help;
  help.Follow("keys.html");
  CHECK(help.PageName() == QStringLiteral("keys.html"));
  CHECK(help.contents->currentItem()->text(0) == QStringLiteral("Keys"));
}

TEST_CASE(
    "links are readable on the page when the desktop has turned dark, which stays where it was") {
  const Shown shown;
  shown.Follow("importing.html");
  shown.window->resize(500, 200);
  QScrollBar& bar = *shown.page->verticalScrollBar();
  bar.setValue(bar.maximum());
  const int place = bar.value();
  REQUIRE(place > 0);
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(49, 54, 59));
  dark.setColor(QPalette::Link, Qt::cyan);
  QApplication::setPalette(dark);
  QTest::qWait(0);
  const QColor ground = QApplication::palette().color(QPalette::Base);
  int links = 0;
  for (QTextBlock block = shown.page->document()->begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      if (!format.isAnchor() || format.anchorHref().isEmpty()) continue;
      ++links;
      CHECK(ContrastOf(format.foreground().color(), ground) >= kReadableContrast);
    }
  }
  CHECK(links > 0);
  CHECK(bar.value() == place);
  QApplication::setPalette(before);
}

TEST_CASE("a link to a place outside the help, or to nothing, is not followed") {
  const Shown help;
  for (const char* address :
       {"https://example.org/", "http://example.org/keys.html", "file:///etc/hostname",
        "mailto:somebody@example.org", "qrc:/keys.html", "//example.org/keys.html",
        "tessara-help://example.org/keys.html", "javascript:alert(1)", "data:text/html,x",
        "../../../../etc/hostname", "nowhere.html", ""}) {
    CAPTURE(address);
    help.Follow(address);
    CHECK(help.PageName() == QStringLiteral("welcome.html"));
  }
}

TEST_CASE("a page gets nothing from outside the help") {
  const QTemporaryDir folder;
  QFile picture(folder.filePath(QStringLiteral("picture.png")));
  REQUIRE(picture.open(QIODevice::WriteOnly));
  const Shown help;
  for (int type : {QTextDocument::HtmlResource, QTextDocument::ImageResource,
                   QTextDocument::StyleSheetResource}) {
    CHECK_FALSE(help.page->loadResource(type, QUrl::fromLocalFile(picture.fileName())).isValid());
    CHECK_FALSE(
        help.page->loadResource(type, QUrl(QStringLiteral("https://example.org/x"))).isValid());
  }
}

TEST_CASE("back, forward and home go through the pages") {
  const Shown help;
  help.Follow("quiz.html");
  help.Follow("test.html");
  help.Press(Qt::Key_Left, Qt::AltModifier);
  CHECK(help.PageName() == QStringLiteral("quiz.html"));
  help.Press(Qt::Key_Right, Qt::AltModifier);
  CHECK(help.PageName() == QStringLiteral("test.html"));
  help.Press(Qt::Key_Home, Qt::AltModifier);
  CHECK(help.PageName() == QStringLiteral("welcome.html"));
}

TEST_CASE("the index is narrowed by what is typed, and Return opens its first entry") {
  const Shown help;
  help.Press(Qt::Key_F, Qt::ControlModifier);
  REQUIRE(help.find->hasFocus());
  QTest::keyClicks(help.find, QStringLiteral("safety"));
  CHECK(help.PageName() == QStringLiteral("welcome.html"));
  help.Press(Qt::Key_Return);
  CHECK(help.PageName() == QStringLiteral("saving.html"));
  CHECK(help.index->currentItem()->text() == QStringLiteral("safety copies"));
}

TEST_CASE("a word that is not in the index opens nothing") {
  const Shown help;
  QTest::keyClicks(help.find, QStringLiteral("zzz"));
  QTest::keyClick(help.find, Qt::Key_Return);
  CHECK(help.PageName() == QStringLiteral("welcome.html"));
}

TEST_CASE("F6 goes from the contents to the page and back") {
  const Shown help;
  help.contents->setFocus();
  help.Press(Qt::Key_F6);
  CHECK(help.page->hasFocus());
  help.Press(Qt::Key_F6);
  CHECK(help.contents->hasFocus());
}

TEST_CASE("the page cannot be written in, and its parts have names") {
  const Shown help;
  CHECK(help.page->isReadOnly());
  for (const QWidget* part :
       std::initializer_list<QWidget*>{help.page, help.contents, help.find, help.index})
    CHECK_FALSE(part->accessibleName().isEmpty());
}

TEST_CASE("a second call brings the same window forward, with its page") {
  const Shown help;
  help.Follow("quiz.html");
  help.window->showMinimized();
  ShowHelpContents(kHelpFile);
  CHECK(HelpWindows() == QList<QWidget*>{help.window});
  CHECK_FALSE(help.window->isMinimized());
  CHECK(help.PageName() == QStringLiteral("quiz.html"));
}

TEST_CASE("Escape closes the help, and a later call opens it anew") {
  {
    const Shown help;
    help.Press(Qt::Key_Escape);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    CHECK(HelpWindows().isEmpty());
  }
  const Shown again;
  CHECK(again.PageName() == QStringLiteral("welcome.html"));
}

TEST_CASE("the help is not modal and does not keep the program running") {
  const Shown help;
  CHECK_FALSE(help.window->isModal());
  CHECK_FALSE(help.window->testAttribute(Qt::WA_QuitOnClose));
}

TEST_CASE("the help ends with the program") {
  const Shown help;
  QMetaObject::invokeMethod(
      qApp, [] { QApplication::quit(); }, Qt::QueuedConnection);
  QApplication::exec();
  CHECK(HelpWindows().isEmpty());
}

TEST_CASE("the module beside the program shows the help") {
  ShowHelpWithModule(FromUtf8(TESSARA_PROGRAM_FOLDER), FromUtf8(TESSARA_HELP_FILE));
  CHECK(HelpWindows().size() == 1);
  CloseHelpWindows();
}

TEST_CASE("a missing module is silent") {
  ShowHelpWithModule(u"/nowhere", FromUtf8(TESSARA_HELP_FILE));
  CHECK(HelpWindows().isEmpty());
}

}  // namespace tessara::test
