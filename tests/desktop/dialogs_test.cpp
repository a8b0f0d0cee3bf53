#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSizeGrip>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <deque>
#include <doctest/doctest.h>
#include <functional>

#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "adapters/qt/devices/qt_message_boxes.h"
#include "adapters/qt/text/qt_text.h"
#include "base/run_time_error.h"
#include "machine/hourglass.h"
#include "tests/desktop/support/config_folder.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/support/contracts/dialogs_contract.h"
#include "tests/support/environment_variable.h"

using namespace tessara;
using namespace tessara::test;

namespace {

/// Runs when the next dialog is up.
template <class DialogType>
void WhenUp(const std::function<void(DialogType&)>& act) {
  StartAnew();
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<DialogType*>(QApplication::activeModalWidget());
    REQUIRE(dialog != nullptr);
    act(*dialog);
  });
}

void Press(QMessageBox& box, QMessageBox::StandardButton button) {
  QTest::mouseClick(box.button(button), Qt::LeftButton);
}

/// Types a name and takes it.
void AnswerWith(QFileDialog& dialog, const char* name) {
  auto* line = dialog.findChild<QLineEdit*>();
  line->selectAll();
  QTest::keyClicks(line, name);
  QTest::keyClick(line, Qt::Key_Return);
}

FileDialogRequest SaveIn(const QTemporaryDir& folder) {
  FileDialogRequest request;
  request.mode = FileDialogMode::kSave;
  request.filter = u"Study Cards|*.tsr";
  request.flags = kHideReadOnly | kFileMustExist;
  request.initialFolder = FromQString(folder.path());
  return request;
}

/// Answers the dialogs that come on screen with what was told beforehand.
class ScreenUser : public QObject {
 public:
  ScreenUser() {
    StartAnew();
    Look();
  }

  std::deque<Text> files;
  std::deque<std::optional<Text>> texts;

 private:
  /// Before it acts it sees to the next look: a refusal comes up while it acts.
  void Look() {
    QTimer::singleShot(1, this, [this] { Look(); });
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) Press(*box, QMessageBox::Ok);
    if (auto* dialog = qobject_cast<QFileDialog*>(modal); dialog != nullptr && !files.empty()) {
      AnswerFile(*dialog, ToQString(Next(files)));
    }
    if (auto* dialog = qobject_cast<QInputDialog*>(modal); dialog != nullptr && !texts.empty()) {
      AnswerText(*dialog, Next(texts));
    }
  }
  static void AnswerFile(QFileDialog& dialog, const QString& path) {
    if (path.isEmpty()) return dialog.reject();
    AnswerWith(dialog, QFileInfo(path).fileName().toUtf8());
  }
  static void AnswerText(QInputDialog& dialog, const std::optional<Text>& text) {
    if (!text) return dialog.reject();
    auto* line = dialog.findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, ToQString(*text));
    QTest::keyClick(line, Qt::Key_Return);
  }
  template <class T>
  static T Next(std::deque<T>& answers) {
    T answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

struct NoPrinting {
  PrintModuleSource printing{u"/nowhere"};
  QtDialogs dialogs{printing};
};

}  // namespace

TEST_CASE("The dialogs keep to what the program counts on") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  QFile verbs(folder.filePath("verbs.tsr"));
  REQUIRE(verbs.open(QIODevice::WriteOnly));
  ScreenUser onScreen;
  const DialogUser user{[&](const Text& path) { onScreen.files.push_back(path); },
                        [&](const auto& text) { onScreen.texts.push_back(text); }};
  CheckFileDialogContract(fixture.dialogs, user, FromQString(folder.path()));
  CheckTextDialogContract(fixture.dialogs, user);
}

TEST_CASE("A message box has its text, title, icon and buttons, all as they stand") {
  struct Case {
    int flags;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton byDefault;
    QMessageBox::StandardButton press;
    MessageAnswer answer;
  };
  const Case cases[] = {
      {kOkOnly, QMessageBox::NoIcon, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok,
       MessageAnswer::kOk},
      {kStopIcon, QMessageBox::Critical, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok,
       MessageAnswer::kOk},
      {kQuestionIcon + kYesNo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
       QMessageBox::Yes, QMessageBox::No, MessageAnswer::kNo},
      {kExclamationIcon + kYesNoCancel, QMessageBox::Warning,
       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Yes,
       MessageAnswer::kYes},
      {kInformationIcon + kOkCancel + kSecondButtonDefault, QMessageBox::Information,
       QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Cancel,
       MessageAnswer::kCancel},
  };
  for (const Case& test : cases) {
    CAPTURE(test.flags);
    WhenUp<QMessageBox>([&test](QMessageBox& box) {
      CHECK(box.text() == "<b>1 & 2</b>\n\nend");
      CHECK(box.textFormat() == Qt::PlainText);
      CHECK(box.windowTitle() == "Ti[*][*]tle");
      CHECK(box.icon() == test.icon);
      CHECK(box.standardButtons() == test.buttons);
      CHECK(box.standardButton(box.defaultButton()) == test.byDefault);
      Press(box, test.press);
    });
    QtMessageBoxes boxes;
    CHECK(boxes.Show(u"<b>1 & 2</b>\r\n\r\nend", test.flags, u"Ti[*]tle") == test.answer);
  }
}

TEST_CASE("A message box's icon has a name for a screen reader") {
  const std::pair<int, const char*> cases[] = {{kStopIcon, "Error"},
                                               {kQuestionIcon, "Question"},
                                               {kExclamationIcon, "Warning"},
                                               {kInformationIcon, "Information"}};
  for (const auto& [flags, name] : cases) {
    WhenUp<QMessageBox>([&name = name](QMessageBox& box) {
      CHECK(box.findChild<QLabel*>("qt_msgboxex_icon_label")->accessibleName() == name);
      Press(box, QMessageBox::Ok);
    });
    QtMessageBoxes boxes;
    boxes.Show(u"text", flags, u"title");
  }
}

TEST_CASE("A message without end is shown as far as a message box goes") {
  QtMessageBoxes messages;
  WhenUp<QMessageBox>([](QMessageBox& box) {
    CHECK(box.text() == QString(1024, 'x'));
    Press(box, QMessageBox::Ok);
  });
  messages.Show(Text(10'000'000, u'x'), kOkOnly, u"Tessara");
}

TEST_CASE("Escape and the close box do not answer Yes or No") {
  WhenUp<QMessageBox>([](QMessageBox& box) {
    QTest::keyClick(&box, Qt::Key_Escape);
    CHECK(box.isVisible());
    box.close();
    CHECK(box.isVisible());
    Press(box, QMessageBox::Yes);
  });
  QtMessageBoxes boxes;
  CHECK(boxes.Show(u"?", kYesNo, u"") == MessageAnswer::kYes);
}

TEST_CASE("Escape is Cancel where there is one, and OK where there is nothing else") {
  for (const int flags : {kOkOnly, kOkCancel, kYesNoCancel}) {
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    QtMessageBoxes boxes;
    CHECK(boxes.Show(u"?", flags, u"") ==
          (flags == kOkOnly ? MessageAnswer::kOk : MessageAnswer::kCancel));
  }
}

TEST_CASE("The input box shows prompt and title as they stand and offers the default") {
  NoPrinting fixture;
  WhenUp<QInputDialog>([](QInputDialog& dialog) {
    CHECK(dialog.windowTitle() == "Go <To>");
    CHECK(dialog.findChild<QLabel*>()->textFormat() == Qt::PlainText);
    CHECK(dialog.labelText() == "<Enter> a & b");
    CHECK(dialog.textValue() == "1");
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), "23");
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  CHECK(fixture.dialogs.AskText(u"<Enter> a & b", u"Go <To>", u"1") == u"23");
  WhenUp<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
  CHECK(fixture.dialogs.AskText(u"", u"", u"1") == std::nullopt);
}

TEST_CASE("Saving over a file is not asked about by the dialog") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  const QString path = folder.filePath("deck.tsr");
  QFile file(path);
  REQUIRE(file.open(QIODevice::WriteOnly));
  file.close();
  WhenUp<QFileDialog>([&path](QFileDialog& dialog) {
    CHECK(dialog.acceptMode() == QFileDialog::AcceptSave);
    CHECK(dialog.nameFilters() == QStringList("Study Cards (*.tsr)"));
    CHECK(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    dialog.selectFile(path);
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  CHECK(fixture.dialogs.AskFile(SaveIn(folder)) == FromQString(path));
}

TEST_CASE("A name typed without an ending stays as it is") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  WhenUp<QFileDialog>([](QFileDialog& dialog) { AnswerWith(dialog, "verbs"); });
  CHECK(fixture.dialogs.AskFile(SaveIn(folder)) == FromQString(folder.filePath("verbs")));
}

TEST_CASE("A refused answer is told as it stands over the dialog, which then takes another one") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  FileDialogRequest request = SaveIn(folder);
  request.refusal = [](const Text& path) {
    return path.ends_with(u"bad.tsr") ? u"<b>Not</b> there: " + path : Text();
  };
  WhenUp<QFileDialog>([&folder](QFileDialog& dialog) {
    for (int answer = 0; answer < 2; ++answer) {
      QTimer::singleShot(0, [&folder] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        REQUIRE(box != nullptr);
        CHECK(box->text() == "<b>Not</b> there: " + folder.filePath("bad.tsr"));
        CHECK(box->windowTitle() == "Tessara");
        CHECK(box->icon() == QMessageBox::Warning);
        Press(*box, QMessageBox::Ok);
      });
      AnswerWith(dialog, "bad.tsr");
      CHECK(dialog.isVisible());
    }
    AnswerWith(dialog, "good.tsr");
  });
  CHECK(fixture.dialogs.AskFile(request) == FromQString(folder.filePath("good.tsr")));
}

TEST_CASE("A dialog that has refused an answer can be cancelled") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  FileDialogRequest request = SaveIn(folder);
  request.refusal = [](const Text&) { return Text(u"Nowhere"); };
  WhenUp<QFileDialog>([](QFileDialog& dialog) {
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    AnswerWith(dialog, "any.tsr");
    dialog.reject();
  });
  CHECK(fixture.dialogs.AskFile(request).empty());
}

TEST_CASE("A folder is gone into, whatever is refused") {
  NoPrinting fixture;
  const QTemporaryDir folder;
  QDir(folder.path()).mkdir("decks");
  FileDialogRequest request = SaveIn(folder);
  request.refusal = [](const Text& path) {
    return path.ends_with(u"/decks") ? Text(u"No") : Text();
  };
  WhenUp<QFileDialog>([&folder](QFileDialog& dialog) {
    AnswerWith(dialog, "decks");
    CHECK(dialog.directory() == QDir(folder.filePath("decks")));
    AnswerWith(dialog, "verbs.tsr");
  });
  CHECK(fixture.dialogs.AskFile(request) == FromQString(folder.filePath("decks/verbs.tsr")));
}

TEST_CASE("The places at the side are those of home, documents and desktop that are there") {
  NoPrinting fixture;
  const QTemporaryDir home;
  const EnvironmentVariable variable("HOME", home.path().toStdString());
  const ConfigFolder noUserFolders;
  for (const auto mode : {FileDialogMode::kOpen, FileDialogMode::kSave}) {
    QDir(home.path()).mkdir("Documents");
    FileDialogRequest request;
    request.mode = mode;
    WhenUp<QFileDialog>([&home](QFileDialog& dialog) {
      CHECK(dialog.sidebarUrls() == QList{QUrl::fromLocalFile(home.path()),
                                          QUrl::fromLocalFile(home.filePath("Documents"))});
      dialog.reject();
    });
    fixture.dialogs.AskFile(request);
  }
}

TEST_CASE("A file dialog's panes and grips have names for a screen reader") {
  NoPrinting fixture;
  WhenUp<QFileDialog>([](QFileDialog& dialog) {
    auto& panes = *dialog.findChild<QSplitter*>();
    CHECK(panes.accessibleName() == "Places and files");
    CHECK(panes.handle(1)->accessibleName() == "Divider");
    CHECK(dialog.findChild<QSizeGrip*>()->accessibleName() == "Size of the dialog");
    dialog.reject();
  });
  fixture.dialogs.AskFile({});
}

TEST_CASE("A cancelled file dialog names no file, and opening wants one that exists") {
  NoPrinting fixture;
  FileDialogRequest request;
  request.flags = kFileMustExist;
  WhenUp<QFileDialog>([](QFileDialog& dialog) {
    CHECK(dialog.acceptMode() == QFileDialog::AcceptOpen);
    CHECK(dialog.fileMode() == QFileDialog::ExistingFile);
    dialog.reject();
  });
  CHECK(fixture.dialogs.AskFile(request).empty());
}

TEST_CASE("Without the print module the printer is an error") {
  NoPrinting fixture;
  CHECK_THROWS_AS(fixture.dialogs.AskPrinter(), RunTimeError);
}

TEST_CASE(
    "While a dialog is open the pointer is plain, also where the wait pointer is up around it") {
  const QTemporaryDir folder;
  NoPrinting fixture;
  QtDesktop desktop(nullptr);
  const Hourglass waiting(desktop);
  const auto plain = [] { return QApplication::overrideCursor() == nullptr; };
  int dialogs = 0;
  WhenUp<QFileDialog>([&](QFileDialog& dialog) { dialogs += plain(), dialog.reject(); });
  fixture.dialogs.AskFile(SaveIn(folder));
  CHECK_FALSE(plain());
  WhenUp<QInputDialog>([&](QInputDialog& dialog) { dialogs += plain(), dialog.reject(); });
  fixture.dialogs.AskText(u"Number", u"Go to", u"1");
  CHECK_FALSE(plain());
  WhenUp<QMessageBox>([&](QMessageBox& box) { dialogs += plain(), box.accept(); });
  QtMessageBoxes().Show(u"Text", kOkOnly, u"Title");
  CHECK_FALSE(plain());
  CHECK(dialogs == 3);
}
