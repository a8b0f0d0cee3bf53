#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <doctest/doctest.h>

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/views/boxes/text_area_view.h"
#include "adapters/qt/views/too_long_mark.h"
#include "base/utf8.h"
#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

void Paste(QWidget& box, const QString& text) {
  QApplication::clipboard()->setText(text);
  QTest::keySequence(&box, QKeySequence::Paste);
}

/// Commits text the way an input method does.
void Commit(QWidget& box, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&box, &event);
}

/// Composes text the way an input method does, behind what it commits.
void Compose(QWidget& box, const QString& composed, const QString& committed = {}) {
  QInputMethodEvent event(composed, {});
  event.setCommitString(committed);
  QApplication::sendEvent(&box, &event);
}

QString ComposedIn(const QPlainTextEdit& box) {
  return box.textCursor().block().layout()->preeditAreaText();
}

void Undo(QWidget& box) {
  QTest::keySequence(&box, QKeySequence::Undo);
}

void Redo(QWidget& box) {
  QTest::keySequence(&box, QKeySequence::Redo);
}

void PutCursorAtEnd(QPlainTextEdit& box) {
  box.moveCursor(QTextCursor::End);
}

}  // namespace

TEST_CASE("Typed text reaches the form character by character") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  QTest::keyClicks(&Fixture::Of("Text1"), "Ab");
  CHECK(form.lineBox.TextOf() == u"Ab");
  CHECK(form.log.Take() == "key A, change, key b, change");
}

TEST_CASE("Return in a box of several lines is CR LF, and deletes as one") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  QTest::keyClicks(&area, "a");
  QTest::keyClick(&area, Qt::Key_Return);
  QTest::keyClicks(&area, "b");
  CHECK(form.areaBox.TextOf() == u"a\r\nb");
  QTest::keyClick(&area, Qt::Key_Backspace);
  QTest::keyClick(&area, Qt::Key_Backspace);
  CHECK(form.areaBox.TextOf() == u"a");
}

TEST_CASE("What the user does not touch stays to the last character") {
  const Text odd[] = {u"non\u00A0breaking",
                      u"lone\rreturn",
                      u"lone\nfeed",
                      Text(u"nul\0byte", 8),
                      u"tab\tand\u0081unassigned",
                      u"\r\n\r\n",
                      u"bell\u0007",
                      u" blanks ",
                      u"paragraph\u2029border\uFDD0\uFDD1",
                      u"private\uE001",
                      u"rat \xD83D\xDC00"};
  for (const Text& text : odd) {
    CAPTURE(ToUtf8(text));
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    form.areaBox.SetText(text);
    form.lineBox.SetText(text);
    CHECK(form.areaBox.TextOf() == text);
    auto& area = Fixture::Of<QPlainTextEdit>("Text2");
    PutCursorAtEnd(area);
    QTest::keyClicks(&area, "x");
    CHECK(form.areaBox.TextOf() == text + u"x");
    QTest::keyClick(&area, Qt::Key_Backspace);
    CHECK(form.areaBox.TextOf() == text);
    auto& line = Fixture::Of<QLineEdit>("Text1");
    line.end(false);
    QTest::keyClicks(&line, "x");
    CHECK(form.lineBox.TextOf() == text + u"x");
  }
}

TEST_CASE("Characters of every script stay as they are on every way in") {
  const QString scripts =
      QStringLiteral("\u0416\u4E2D\u05D0e\u0301\U0001F400\uFEFF\uE001\u0915\u093F");
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& line = Fixture::Of<QLineEdit>("Text1");
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  SUBCASE("typed") {
    for (const char32_t character : scripts.toStdU32String()) {
      const QString typed = QStringView(QChar::fromUcs4(character)).toString();
      QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_unknown, typed, {});
      QTest::sendKeyEvent(QTest::Click, &area, Qt::Key_unknown, typed, {});
    }
  }
  SUBCASE("by an input method") {
    Commit(line, scripts);
    Commit(area, scripts);
  }
  SUBCASE("pasted") {
    Paste(line, scripts);
    Paste(area, scripts);
  }
  const Text expected = scripts.toStdU16String();
  CHECK(ToUtf8(form.lineBox.TextOf()) == ToUtf8(expected));
  CHECK(ToUtf8(form.areaBox.TextOf()) == ToUtf8(expected));
  CHECK(line.text() == scripts);
  CHECK(area.toPlainText() == scripts);
}

TEST_CASE(
    "Backspace, Delete, selection and the arrow keys go by characters as a reader sees them") {
  const Text characters[] = {u"x",
                             u"e\u0301\u0323",
                             u"\xD83D\xDE00",
                             u"\u0915\u093F",
                             u"\xD83D\xDC68\u200D\xD83D\xDC69",
                             u"\u05E9\u05C1"};
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  for (const Text& character : characters) {
    CAPTURE(ToUtf8(character));
    for (TextBox* const box : {&form.lineBox, &form.areaBox}) {
      QWidget& widget = Fixture::Of(box == &form.lineBox ? "Text1" : "Text2");
      box->SetText(u"a" + character);
      QTest::keyClick(&widget, Qt::Key_End);
      QTest::keyClick(&widget, Qt::Key_Left);
      QTest::keyClicks(&widget, "|");
      CHECK(ToUtf8(box->TextOf()) == ToUtf8(u"a|" + character));
      QTest::keyClick(&widget, Qt::Key_End);
      QTest::keyClick(&widget, Qt::Key_Backspace);
      CHECK(ToUtf8(box->TextOf()) == "a|");
      Undo(widget);
      CHECK(ToUtf8(box->TextOf()) == ToUtf8(u"a|" + character));
      QTest::keyClick(&widget, Qt::Key_End);
      QTest::keyClick(&widget, Qt::Key_Left, Qt::ShiftModifier);
      QTest::keyClicks(&widget, "+");
      CHECK(ToUtf8(box->TextOf()) == "a|+");
      box->SetText(character + u"b");
      QTest::keyClick(&widget, Qt::Key_Home);
      QTest::keyClick(&widget, Qt::Key_Delete);
      CHECK(ToUtf8(box->TextOf()) == "b");
    }
  }
}

TEST_CASE("A box whose text a save would cut is marked, and tells by how many characters") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  for (TextBox* const box : {&form.lineBox, &form.areaBox}) {
    QWidget& widget = Fixture::Of(box == &form.lineBox ? "Text1" : "Text2");
    box->charactersCut = [](const Text& text) {
      return text.size() - std::min<std::size_t>(text.size(), 3);
    };
    const auto marks = [&widget] {
      const auto children = widget.findChildren<QWidget*>();
      return std::ranges::count_if(children, [](const QWidget* child) {
        return dynamic_cast<const TooLongMark*>(child) != nullptr && child->isVisible();
      });
    };
    box->SetText(u"abc");
    CHECK(marks() == 0);
    CHECK(widget.accessibleDescription().isEmpty());
    QTest::keyClick(&widget, Qt::Key_End);
    QTest::keyClicks(&widget, "d");
    CHECK(marks() == 1);
    CHECK(widget.accessibleDescription() == "1 character too long: a save cuts it off.");
    QTest::keyClicks(&widget, "e");
    CHECK(box->TextOf() == u"abcde");
    CHECK(widget.toolTip() == "2 characters too long: a save cuts them off.");
    QTest::keyClick(&widget, Qt::Key_Backspace);
    QTest::keyClick(&widget, Qt::Key_Backspace);
    CHECK(marks() == 0);
    CHECK(widget.toolTip().isEmpty());
  }
}

TEST_CASE("A corrected paste can be undone") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  form.areaBox.SetMaxLength(2);
  QTest::keyClicks(&area, "a");
  Paste(area, QStringLiteral("\u4E2Db"));
  CHECK(form.areaBox.TextOf() == u"a\u4E2D");
  while (area.document()->isUndoAvailable()) area.undo();
  CHECK(form.areaBox.TextOf().empty());
}

TEST_CASE("Undo takes back typing and a corrected paste, and redo brings them again") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  struct Kind {
    const char* name;
    TextBox& box;
  };
  for (const Kind& kind : {Kind{"Text1", form.lineBox}, Kind{"Text2", form.areaBox}}) {
    CAPTURE(kind.name);
    QWidget& widget = Fixture::Of(kind.name);
    kind.box.SetMaxLength(4);
    QTest::keyClicks(&widget, "ac");
    Paste(widget, QStringLiteral("\u4E2Dbd"));
    CHECK(kind.box.TextOf() == u"ac\u4E2Db");
    constexpr int kMostSteps = 4;
    for (int step = 0; step < kMostSteps && !kind.box.TextOf().empty(); ++step) Undo(widget);
    CHECK(kind.box.TextOf().empty());
    for (int step = 0; step < kMostSteps; ++step) Redo(widget);
    CHECK(kind.box.TextOf() == u"ac\u4E2Db");
  }
}

TEST_CASE("What was typed over the limit is not in the way of an undo") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.lineBox.SetMaxLength(3);
  auto& line = Fixture::Of<QLineEdit>("Text1");
  QTest::keyClicks(&line, "ad");
  QTest::keyClick(&line, Qt::Key_Left);
  QTest::keyClicks(&line, "bcc");
  CHECK(form.lineBox.TextOf() == u"abd");
  CHECK(line.cursorPosition() == 2);
  constexpr int kMostSteps = 3;
  for (int step = 0; step < kMostSteps; ++step) Undo(line);
  CHECK(form.lineBox.TextOf().empty());
}

TEST_CASE("Undo brings back what was deleted of a text that is over the limit") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  for (TextBox* box : {&form.lineBox, &form.areaBox}) {
    CAPTURE(box->Name());
    QWidget& widget = Fixture::Of(box->Name().c_str());
    box->SetMaxLength(4);
    box->SetText(u"two words");
    QTest::keySequence(&widget, QKeySequence::SelectAll);
    QTest::keyClicks(&widget, "x");
    CHECK(box->TextOf() == u"x");
    constexpr int kMostSteps = 3;
    for (int step = 0; step < kMostSteps; ++step) Undo(widget);
    CHECK(box->TextOf() == u"two words");
    for (int step = 0; step < kMostSteps; ++step) Redo(widget);
    CHECK(box->TextOf() == u"x");
  }
}

TEST_CASE("Text that is cut, copied or dragged keeps its no-break blanks and odd characters") {
  const Text odd = u"non\u00A0breaking\r\nbell\u0007 line\u2028separator";
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  form.areaBox.SetText(odd);
  QTest::keySequence(&area, QKeySequence::SelectAll);
  QTest::keySequence(&area, QKeySequence::Cut);
  CHECK(form.areaBox.TextOf().empty());
  CHECK(QApplication::clipboard()->mimeData()->formats() == QStringList{"text/plain"});
  QTest::keySequence(&area, QKeySequence::Paste);
  QTest::keySequence(&area, QKeySequence::Paste);
  CHECK(form.areaBox.TextOf() == odd + odd);
}

TEST_CASE("What a composed text replaces stays in the form until it is committed") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& line = Fixture::Of<QLineEdit>("Text1");
  form.lineBox.SetText(u"old");
  line.selectAll();
  form.log.Take();
  Compose(line, "n");
  Compose(line, "ne");
  CHECK(form.lineBox.TextOf() == u"old");
  CHECK(form.log.Take().empty());
  Compose(line, {}, "new");
  CHECK(form.lineBox.TextOf() == u"new");
  // An input method may tell of no end: what is typed and what has the focus do.
  line.selectAll();
  Compose(line, "n");
  QTest::keyClicks(&line, "a");
  CHECK(form.lineBox.TextOf() == FromQString(line.text()));
  line.selectAll();
  Compose(line, "n");
  line.clearFocus();
  CHECK(form.lineBox.TextOf() == FromQString(line.text()));
  line.setFocus();
  form.lineBox.SetText(u"new");
  // One that is broken off has taken the selection away.
  line.selectAll();
  Compose(line, "n");
  Compose(line, {});
  CHECK(form.lineBox.TextOf().empty());
}

TEST_CASE("Composed text reaches the form when it is committed") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  for (const char* name : {"Text1", "Text2"}) {
    CAPTURE(name);
    TextBox& box = name == std::string("Text1") ? form.lineBox : form.areaBox;
    QWidget& widget = Fixture::Of(name);
    QTest::keyClicks(&widget, "a");
    form.log.Take();
    Compose(widget, "e");
    Compose(widget, "e'");
    CHECK(box.TextOf() == u"a");
    CHECK(form.log.Take().empty());
    Compose(widget, {}, QStringLiteral("\u00E9"));
    CHECK(box.TextOf() == u"a\u00E9");
  }
  CHECK(ComposedIn(area).isEmpty());
  // What is put right in the text before it leaves the composed text alone.
  form.areaBox.SetMaxLength(3);
  Compose(area, "zi", QStringLiteral("\u4E2D\u6587"));
  CHECK(form.areaBox.TextOf() == u"a\u00E9\u4E2D");
  CHECK(ComposedIn(area) == "zi");
  form.areaBox.SetMaxLength(4);
  Compose(area, {}, "z");
  CHECK(form.areaBox.TextOf() == u"a\u00E9\u4E2Dz");
  CHECK(area.toPlainText() == QStringLiteral("a\u00E9\u4E2Dz"));
}

TEST_CASE("Pasted lines keep their breaks, whatever they are made of") {
  for (const char* lines : {"one\ntwo\n", "one\r\ntwo\r\n", "one\rtwo\r"}) {
    CAPTURE(lines);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    auto& area = Fixture::Of<QPlainTextEdit>("Text2");
    Paste(area, lines);
    CHECK(form.areaBox.TextOf() == u"one\r\ntwo\r\n");
    CHECK(area.blockCount() == 3);
  }
}

TEST_CASE("A paste of nothing leaves a box as it is") {
  struct Way {
    const char* name;
    std::function<void(QWidget& box)> paste;
  };
  const Way ways[] = {
      {"Ctrl+V", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier); }},
      {"Shift+Insert",
       [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier); }},
      {"the menu's command", [](QWidget& box) { QMetaObject::invokeMethod(&box, "paste"); }},
      {"the middle button",
       [](QWidget& box) {
         auto* area = qobject_cast<QPlainTextEdit*>(&box);
         QTest::mouseClick(area == nullptr ? &box : area->viewport(), Qt::MiddleButton);
       }},
  };
  for (const Way& way : ways) {
    for (const char* name : {"Text1", "Text2"}) {
      CAPTURE(way.name);
      CAPTURE(name);
      Fixture fixture;
      SampleForm& form = fixture.ShowChild();
      TextBox& box = name == std::string("Text1") ? form.lineBox : form.areaBox;
      box.SetText(u"kept");
      QClipboard& clipboard = *QApplication::clipboard();
      clipboard.setMimeData(new QMimeData);
      if (clipboard.supportsSelection())
        clipboard.setMimeData(new QMimeData, QClipboard::Selection);
      way.paste(Fixture::Of(name));
      CHECK(box.TextOf() == u"kept");
    }
  }
}

TEST_CASE("What is pasted is plain text, whatever else it comes as") {
  for (const char* format : {"text/markdown", "text/html"}) {
    CAPTURE(format);
    Fixture fixture;
    SampleForm& form = fixture.ShowChild();
    auto* offered = new QMimeData;
    offered->setData(format, "# <b>marked</b>");
    offered->setText("# plain");
    QApplication::clipboard()->setMimeData(offered);
    QTest::keySequence(&Fixture::Of("Text2"), QKeySequence::Paste);
    CHECK(form.areaBox.TextOf() == u"# plain");
  }
}

TEST_CASE("A lowered limit cuts nothing, and keeps more from coming in") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& line = Fixture::Of<QLineEdit>("Text1");
  form.lineBox.SetText(u"12345");
  form.lineBox.SetMaxLength(3);
  CHECK(line.text() == "12345");
  QTest::keyClicks(&line, "6");
  CHECK(form.lineBox.TextOf() == u"12345");
  CHECK(line.text() == "12345");
  line.end(false);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&line, Qt::Key_Backspace);
  QTest::keyClicks(&line, "67");
  CHECK(form.lineBox.TextOf() == u"126");
}

TEST_CASE("What goes over the limit is the end of what was pasted") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  form.areaBox.SetMaxLength(4);
  form.areaBox.SetText(u"abc");
  QTextCursor cursor = area.textCursor();
  cursor.setPosition(1);
  area.setTextCursor(cursor);
  Paste(area, "bcX");
  CHECK(form.areaBox.TextOf() == u"abbc");
  CHECK(area.toPlainText() == "abbc");
}

TEST_CASE("A box of one line takes what stands before a pasted line break") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& line = Fixture::Of<QLineEdit>("Text1");
  Paste(line, "one\ntwo");
  CHECK(form.lineBox.TextOf() == u"one");
  CHECK(line.text() == "one");
}

TEST_CASE("A text that a form assigns shows, and is not an edit of the user") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.areaBox.SetText(u"one\r\ntwo");
  CHECK(form.log.Take() == "change");
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  CHECK(area.blockCount() == 2);
  CHECK(area.toPlainText() == "one\ntwo");
}

TEST_CASE("A handler that rewrites the text has the last word") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.lineBox.onChange = [&form] { form.lineBox.SetText(u"fixed"); };
  auto& line = Fixture::Of<QLineEdit>("Text1");
  QTest::keyClicks(&line, "a");
  CHECK(line.text() == "fixed");
}

TEST_CASE("A locked box takes no text and can still be read") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  form.areaBox.SetText(u"text");
  form.areaBox.SetLocked(true);
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  QTest::keyClicks(&area, "x");
  CHECK(area.isReadOnly());
  CHECK(form.areaBox.TextOf() == u"text");
  CHECK(area.toPlainText() == "text");
}

TEST_CASE("Tab leaves a box of several lines") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  Fixture::Of("Text2").setFocus();
  QTest::keyClick(&Fixture::Of("Text2"), Qt::Key_Tab);
  CHECK_FALSE(Fixture::Of("Text2").hasFocus());
  CHECK(form.areaBox.TextOf().empty());
}

TEST_CASE("Lines are counted as the box on screen wraps them, and without one") {
  Text text;
  SUBCASE("words") {
    text = u"many words that wrap and wrap and wrap again in a narrow box";
  }
  SUBCASE("without blanks") {
    text = Text(60, u'\u6F22');
  }
  SUBCASE("from right to left") {
    for (int word = 0; word < 20; ++word) text += u"\u05E9\u05C1\u05B8\u05DC\u05D5\u05B9\u05DD ";
  }
  SUBCASE("with marks") {
    for (int word = 0; word < 20; ++word) text += u"\u0939\u093F\u0928\u094D\u0926\u0940 ";
  }
  SUBCASE("with words that only a dictionary finds") {
    for (int word = 0; word < 20; ++word) text += u"\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22";
  }
  Fixture fixture;
  fixture.prepare = [&text](SampleForm& form) { form.areaBox.SetText(text + u"\r\n\r\nend"); };
  const int unseen = fixture.child->areaBox.LineCount();
  SampleForm& form = fixture.ShowChild();
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  int lines = 0;
  for (QTextBlock block = area.document()->begin(); block.isValid(); block = block.next()) {
    lines += block.layout()->lineCount();
  }
  CHECK(lines > 4);
  CHECK(form.areaBox.LineCount() == lines);
  CHECK(unseen == lines);
  const PixelScale scale = PixelScale::OfDesktop();
  const int margins = 2 * static_cast<int>(area.document()->documentMargin());
  CHECK(LineWidthOf(form.areaBox, scale) == area.viewport()->width() - margins);
}

TEST_CASE("Undo and redo work in every box, redo by either of its keys") {
  Fixture fixture;
  fixture.ShowChild();
  const std::pair<Qt::Key, Qt::KeyboardModifiers> redoKeys[] = {
      {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier}, {Qt::Key_Y, Qt::ControlModifier}};
  for (TextBox* box : {&fixture.child->lineBox, &fixture.child->areaBox}) {
    QWidget& widget = Fixture::Of(box->Name().c_str());
    widget.setFocus();
    for (const auto& [key, modifiers] : redoKeys) {
      QTest::keyClicks(&widget, QStringLiteral("word"));
      const Text written = box->TextOf();
      QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier);
      CHECK(box->TextOf() != written);
      QTest::keyClick(&widget, key, modifiers);
      CHECK(box->TextOf() == written);
    }
  }
}
