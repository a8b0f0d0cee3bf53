#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <QUrl>
#include <doctest/doctest.h>

#include "adapters/qt/devices/qt_message_boxes.h"
#include "tests/desktop/support/fixture.h"
#include "tests/support/scratch_folder.h"

using namespace tessara;
using namespace tessara::test;

namespace {

/// What a file manager offers for the files.
void Offer(QMimeData& mime, const std::vector<std::string>& paths) {
  QList<QUrl> urls;
  for (const std::string& path : paths) urls += QUrl::fromLocalFile(QString::fromStdString(path));
  mime.setUrls(urls);
}

/// Drags it over the middle of the widget and lets it go there. True where it was taken.
bool Drop(const QMimeData& mime, QWidget& widget) {
  const QPoint place = widget.rect().center();
  QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                        Qt::NoModifier);
  QApplication::sendEvent(&widget, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(place, Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &drop);
  CHECK(drop.dropAction() == Qt::CopyAction);
  return drop.isAccepted();
}

struct DropFixture : Fixture {
  ScratchFolder folder;
  QMimeData mime;
  QWidget& window = *Top("MDIForm1");

  DropFixture() {
    folder.Write("birds.tsr", "a deck");
    folder.Write("other.tsr", "another");
    frame->taken = folder.TextPath(u"birds.tsr");
  }
  std::string Path(const char* name) const { return (folder / name).string(); }
};

}  // namespace

TEST_CASE("A file that the form takes can be dropped on the frame, and is its event later") {
  DropFixture fixture;
  Offer(fixture.mime, {fixture.Path("birds.tsr")});
  CHECK(Drop(fixture.mime, fixture.window));
  // The program that it comes from is not to wait for what the event asks.
  CHECK(fixture.frame->log.Take().empty());
  Fixture::Settle();
  CHECK(fixture.frame->log.Take() == "dropped " + fixture.Path("birds.tsr"));
}

TEST_CASE("What is no single file that the form takes is not taken") {
  DropFixture fixture;
  std::filesystem::create_directory(fixture.folder / "folder");
  const std::vector<std::vector<std::string>> offers = {
      {}, {"birds.tsr", "other.tsr"}, {"other.tsr"}, {"missing.tsr"}, {"folder"}};
  for (const auto& names : offers) {
    QMimeData mime;
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(fixture.Path(name.c_str()));
    Offer(mime, paths);
    fixture.frame->taken = paths.empty() ? Text() : FromQString(QString::fromStdString(paths[0]));
    if (names == std::vector<std::string>{"other.tsr"}) fixture.frame->taken = u"";
    CHECK_FALSE(Drop(mime, fixture.window));
  }
  QMimeData text;
  text.setText(QStringLiteral("file:///decks/birds.tsr"));
  CHECK_FALSE(Drop(text, fixture.window));
  QMimeData page;
  page.setUrls({QUrl(QStringLiteral("https://example.org/birds.tsr"))});
  CHECK_FALSE(Drop(page, fixture.window));
  Fixture::Settle();
  CHECK(fixture.frame->log.Take().empty());
}

TEST_CASE("While a box is open no file is taken") {
  DropFixture fixture;
  Offer(fixture.mime, {fixture.Path("birds.tsr")});
  QTimer::singleShot(0, [&fixture] {
    CHECK_FALSE(Drop(fixture.mime, fixture.window));
    QApplication::activeModalWidget()->close();
  });
  QtMessageBoxes().Show(u"!", kOkOnly, u"");
  Fixture::Settle();
  CHECK(fixture.frame->log.Take().empty());
}

TEST_CASE("A text box takes a dragged text and no file") {
  DropFixture fixture;
  SampleForm& form = fixture.ShowChild();
  Offer(fixture.mime, {fixture.Path("other.tsr")});
  QMimeData words;
  words.setText(QStringLiteral("words"));
  auto& area = Fixture::Of<QPlainTextEdit>("Text2");
  for (QWidget* box : {static_cast<QWidget*>(&Fixture::Of("Text1")), area.viewport()}) {
    CHECK_FALSE(Drop(fixture.mime, *box));
    CHECK(Drop(words, *box));
  }
  CHECK(form.lineBox.TextOf() == u"words");
  CHECK(form.areaBox.TextOf() == u"words");
}
