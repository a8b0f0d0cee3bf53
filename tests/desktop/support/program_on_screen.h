#pragma once

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "adapters/posix/posix_file_system.h"
#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "adapters/qt/devices/qt_message_boxes.h"
#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "shell/program.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_failure.h"

namespace tessara::test {

/// The whole program with real windows, boxes and dialogs, over the files of a folder of its own,
/// and the hands of a user at it.
class ProgramOnScreen {
 public:
  using Answer = std::function<void(QWidget& dialog)>;

  ScratchFolder folder;

  ProgramOnScreen() : ProgramOnScreen(nullptr) {
    fakes_.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  }
  /// With settings of the test's own.
  explicit ProgramOnScreen(SettingsStore& settings) : ProgramOnScreen(&settings) {}

  /// Starts with the deck of that name in the folder, or without one.
  void Start(const Text& deck = {}) {
    program.Main(deck.empty() ? Text() : folder.TextPath(deck));
    if (!QTest::qWaitForWindowActive(&Top("MDIForm1"))) {
      throw TestFailure{"the frame did not become active"};
    }
    Settle();
  }

  // What is on screen.
  static QWidget& Top(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QLatin1String(name)) return *widget;
    }
    throw TestFailure{std::string("no window ") + name};
  }
  template <class W = QWidget>
  static W& Of(const char* control, const char* window = "frmMain") {
    W* widget = Top(window).findChild<W*>(QLatin1String(control));
    if (widget == nullptr) throw TestFailure{std::string("no widget ") + control};
    return *widget;
  }
  /// A property of the large card.
  static std::string Card(const char* property) {
    return Of("NoteletCtl1").property(property).toString().toStdString();
  }
  /// The name of what has the focus.
  static std::string Focus() {
    const QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? "" : focused->objectName().toStdString();
  }
  static std::string TitleOf(const char* window) { return Top(window).windowTitle().toStdString(); }

  // The keyboard.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&KeysGoTo(), key, modifiers);
    Settle();
  }
  static void Keys(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) Key(key);
  }
  static void Alt(Qt::Key letter) { Key(letter, Qt::AltModifier); }
  /// Each line break of the text is a Return.
  static void Type(TextView text) {
    for (const char16_t letter : text) {
      if (letter == u'\n') {
        Key(Qt::Key_Return);
      } else {
        QTest::sendKeyEvent(QTest::Click, &KeysGoTo(), Qt::Key_unknown, QString(QChar(letter)),
                            Qt::NoModifier);
      }
    }
    Settle();
  }
  /// Alt goes to the menu bar: down into it, right to the menu, down to the entry.
  static void ChooseByKeys(const char* menu, const char* entry) {
    Key(Qt::Key_Alt, Qt::AltModifier);
    Key(Qt::Key_Down);
    StepTo(menu, Qt::Key_Right, [] {
      const QWidget* popup = QApplication::activePopupWidget();
      return popup == nullptr ? QString() : popup->objectName();
    });
    StepTo(entry, Qt::Key_Down, [] {
      const auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      const QAction* active = popup == nullptr ? nullptr : popup->activeAction();
      return active == nullptr ? QString() : active->objectName();
    });
    Key(Qt::Key_Return);
  }

  // The mouse.
  static void Click(const char* control, const char* window = "frmMain") {
    QTest::mouseClick(&Of(control, window), Qt::LeftButton);
    Settle();
  }
  static void ChooseByMouse(const char* menu, const char* entry) {
    auto& bar = *qobject_cast<QMainWindow*>(&Top("MDIForm1"))->menuBar();
    QMenu& opened = *Top("frmMain").findChild<QMenu*>(QLatin1String(menu));
    const QPoint title = bar.actionGeometry(opened.menuAction()).center();
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, title);
    for (const QAction* action : opened.actions()) {
      if (action->objectName() != QLatin1String(entry)) continue;
      const QPoint place = opened.actionGeometry(const_cast<QAction*>(action)).center();
      QTest::mouseClick(&opened, Qt::LeftButton, Qt::NoModifier, place);
    }
    Settle();
  }

  // Boxes and dialogs, which hold the program until they are answered.
  void WhenAsked(Answer answer) { answers_.push_back(std::move(answer)); }
  void AnswerByKey(Qt::Key key) {
    WhenAsked([key](QWidget&) { QTest::keyClick(&KeysGoTo(), key); });
  }
  /// The texts of the boxes and the titles of the other dialogs since the last time.
  std::vector<std::string> TakeAsked() { return std::exchange(asked_, {}); }

  /// Runs in each yield of the pause at the start.
  void WhilePausing(std::function<void()> action) {
    fakes_.desktop.whileYielding = std::move(action);
  }

  static void Settle() {
    QApplication::processEvents();
    // No window manager brings the frame back when the last dialog has closed.
    if (QApplication::activeWindow() == nullptr) Top("MDIForm1").activateWindow();
    QApplication::processEvents();
  }

 private:
  explicit ProgramOnScreen(SettingsStore* settings)
      : settings_(settings == nullptr ? fakes_.settings : *settings) {
    StartAnew();
    messages_.SetWindows(program.Windows());
    dialogs_.SetWindows(program.Windows());
    program.Windows().SetRenderer(renderer_);
    dialogTimer_.callOnTimeout([this] { AnswerDialog(); });
    dialogTimer_.start(0);
  }

  static QWidget& KeysGoTo() {
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* inPopup = popup == nullptr ? nullptr : popup->focusWidget();
    for (QWidget* receiver :
         {inPopup, popup, QApplication::focusWidget(), QApplication::activeWindow()}) {
      if (receiver != nullptr) return *receiver;
    }
    throw TestFailure{"no window takes keys"};
  }

  template <class Now>
  static void StepTo(const char* wanted, Qt::Key step, const Now& now) {
    constexpr int kMostSteps = 20;
    for (int steps = 0; now() != QLatin1String(wanted); ++steps) {
      if (steps == kMostSteps) throw TestFailure{std::string("the keys never get to ") + wanted};
      Key(step);
    }
  }

  void AnswerDialog() {
    QWidget* dialog = QApplication::activeModalWidget();
    const QWidget* focused = QApplication::focusWidget();
    const bool ready = dialog != nullptr && dialog->isAncestorOf(focused);
    if (!ready || dialog == answered_) return;
    answered_ = dialog;
    auto* box = qobject_cast<QMessageBox*>(dialog);
    asked_.push_back((box != nullptr ? box->text() : dialog->windowTitle()).toStdString());
    if (answers_.empty()) return GiveUp(*dialog);
    const Answer answer = answers_.front();
    answers_.pop_front();
    answer(*dialog);
  }
  /// A test that did not expect the dialog fails by what was asked, and does not hang.
  static void GiveUp(QWidget& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
      box->defaultButton()->click();
    } else {
      dialog.close();
    }
  }

  FakeMachine fakes_;
  SettingsStore& settings_;
  PosixFileSystem files_;
  PrintModuleSource printing_{u"/nowhere"};
  QtMessageBoxes messages_;
  QtDialogs dialogs_{printing_};
  Machine machine_ = {messages_,
                      dialogs_,
                      settings_,
                      files_,
                      fakes_.copies,
                      fakes_.clock,
                      fakes_.desktop,
                      fakes_.documentTypes,
                      fakes_.noSpreadsheet,
                      fakes_.noPrinter,
                      CodePage::Western(),
                      u"/opt/tessara"};

 public:
  Program program{machine_};
  ProgramState& state = program.State();

 private:
  QtRenderer renderer_{program.Windows(), TESSARA_TEST_PICTURES};
  QTimer dialogTimer_;
  QPointer<QWidget> answered_;
  std::deque<Answer> answers_;
  std::vector<std::string> asked_;
};

}  // namespace tessara::test
