// A word that fills line after line, as a key that is held down types it.

#include <QClipboard>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <algorithm>
#include <doctest/doctest.h>
#include <functional>
#include <limits>

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/text/text_layout.h"
#include "tests/desktop/support/fixture.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr int kLetters = 20000;

QString LongWord() {
  return QString(kLetters, u'm');
}

/// As many letters, in words that fit a line.
QString ManyWords() {
  return QStringLiteral("mmmmm ").repeated(kLetters / 6);
}

/// The shortest of some, in nanoseconds: other work may keep the processor.
qint64 TimeOf(const std::function<void()>& work) {
  qint64 shortest = std::numeric_limits<qint64>::max();
  for (int run = 0; run < 3; ++run) {
    QElapsedTimer timer;
    timer.start();
    work();
    shortest = std::min(shortest, timer.nsecsElapsed());
  }
  return shortest;
}

/// Compared with the work on as many letters in words; at words alone it takes 30 times as long.
void CheckInProportion(const std::function<void(const QString&)>& work) {
  const qint64 onWord = TimeOf([&] { work(LongWord()); });
  const qint64 onWords = TimeOf([&] { work(ManyWords()); });
  CHECK(onWord < 10 * onWords);
}

}  // namespace

TEST_CASE(
    "A word without end is laid out on a card in about the time of as many letters in words") {
  TextStyle style;
  style.wrap = true;
  CheckInProportion([&](const QString& text) { LaidOutText(FromQString(text), 300, style); });
}

TEST_CASE("A box takes, shows and counts the lines of such a word in about that time as well") {
  Fixture fixture;
  SampleForm& form = fixture.ShowChild();
  auto& area = dynamic_cast<QPlainTextEdit&>(Fixture::Of("Text2"));
  CheckInProportion([&](const QString& text) {
    form.areaBox.SetText({});
    form.areaBox.SetText(FromQString(text));
  });
  CheckInProportion([&](const QString& text) {
    form.areaBox.SetText(FromQString(text));
    CHECK(form.areaBox.LineCount() > 100);
  });
  CheckInProportion([&](const QString& text) {
    form.areaBox.SetText(FromQString(text));
    form.areaBox.SetText({});
  });
  CheckInProportion([&](const QString& text) {
    form.areaBox.SetText(FromQString(text));
    area.selectAll();
    QTest::keyClick(&area, Qt::Key_Delete);
    QTest::keySequence(&area, QKeySequence::Undo);
    CHECK(form.areaBox.TextOf() == FromQString(text));
    QTest::keySequence(&area, QKeySequence::Redo);
    CHECK(form.areaBox.TextOf().empty());
  });
  CheckInProportion([&](const QString& text) {
    area.selectAll();
    QApplication::clipboard()->setText(text);
    QTest::keySequence(&area, QKeySequence::Paste);
    QTest::keyClicks(&area, "x");
    CHECK(form.areaBox.TextOf() == FromQString(text + u'x'));
  });
}

TEST_CASE("Only a text with a word beyond all bounds breaks within the others") {
  const QString longest(999, u'm');  // and what ends it
  CHECK(WrapModeOf({}) == QTextOption::WrapAtWordBoundaryOrAnywhere);
  CHECK(WrapModeOf(longest) == QTextOption::WrapAtWordBoundaryOrAnywhere);
  CHECK(WrapModeOf(ManyWords()) == QTextOption::WrapAtWordBoundaryOrAnywhere);
  CHECK(WrapModeOf(longest + u'\n' + longest) == QTextOption::WrapAtWordBoundaryOrAnywhere);
  CHECK(WrapModeOf(longest + QStringLiteral("mm")) == QTextOption::WrapAnywhere);
  CHECK(WrapModeOf(ManyWords() + longest + QStringLiteral("mm")) == QTextOption::WrapAnywhere);
}
