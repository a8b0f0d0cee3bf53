#include "tests/random_user/random_user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <array>
#include <iterator>

#include "adapters/qt/text/qt_text.h"
#include "tests/random_user/hands.h"
#include "tests/support/hostile_texts.h"

namespace tessara::test {

namespace {

struct KeyPress {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

constexpr KeyPress kKeys[] = {
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Return},
    {Qt::Key_Enter},
    {Qt::Key_Escape},
    {Qt::Key_Space},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_PageUp, Qt::ControlModifier},
    {Qt::Key_PageDown, Qt::ControlModifier},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_F1},
    {Qt::Key_F10},
    {Qt::Key_Alt, Qt::AltModifier},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_Y, Qt::ControlModifier},
    {Qt::Key_Insert, Qt::ShiftModifier},
    {Qt::Key_Tab, Qt::ControlModifier},
    {Qt::Key_F6, Qt::ControlModifier},
};

/// Keys that go nowhere in a file dialog but through its own buttons, and delete nothing.
constexpr KeyPress kKeysOfFileDialog[] = {
    {Qt::Key_Tab}, {Qt::Key_Backtab, Qt::ShiftModifier}, {Qt::Key_Escape}, {Qt::Key_F1}};

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  if (!name.isEmpty()) return name.toStdString();
  return widget.metaObject()->className();
}

std::string PathTo(const QWidget& widget) {
  const QWidget* outer = widget.parentWidget();
  while (outer != nullptr && outer->objectName().isEmpty()) outer = outer->parentWidget();
  return (outer == nullptr ? "" : NameOf(*outer) + "/") + NameOf(widget);
}

bool CanBeUsed(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && !widget.visibleRegion().isEmpty();
}

/// What a click can do something to.
bool TakesClicks(QWidget& widget) {
  return qobject_cast<QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<QComboBox*>(&widget) != nullptr ||
         qobject_cast<QLineEdit*>(&widget) != nullptr ||
         qobject_cast<QAbstractScrollArea*>(widget.parentWidget()) != nullptr ||
         !widget.objectName().isEmpty();
}

template <class W = QWidget>
QList<W*> UsableIn(QWidget& window) {
  QList<W*> usable;
  for (W* widget : window.findChildren<W*>()) {
    const bool inside = widget->window() == window.window();
    if (inside && CanBeUsed(*widget) && TakesClicks(*widget)) usable += widget;
  }
  return usable;
}

/// What leads away from the deck: with the same chance as all else it would leave none of the time
/// to the rest.
bool LeadsAway(const QObject& thing) {
  static const QStringList names{"mnuExit",      "mnuHelp", "mnuSC",   "mnuAbout", "mnuHelpTopics",
                                 "mnuHelpTopic", "mnuMode", "mnuQuiz", "mnuTest",  "Command3(2)"};
  return names.contains(thing.objectName());
}

/// One of some menus, entries or buttons.
template <class Thing>
Thing& OneOf(QList<Thing*>& things, Dice& dice) {
  constexpr int kOftenOtherwise = 4;
  Thing* thing = dice.OneOf(things);
  if (LeadsAway(*thing) && !dice.OneIn(kOftenOtherwise)) thing = dice.OneOf(things);
  return *thing;
}

/// Where clicks go: the child window in front of the frame, else the window itself.
QWidget& PartInUse(QWidget& window) {
  const auto* area = window.findChild<QMdiArea*>();
  QWidget* child = area == nullptr ? nullptr : area->activeSubWindow();
  return child == nullptr ? window : *child;
}

bool TakesText(QWidget* widget) {
  return qobject_cast<QLineEdit*>(widget) != nullptr ||
         qobject_cast<QPlainTextEdit*>(widget) != nullptr;
}

QWidget& WindowInFront() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr) return *active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("MDIForm1")) return *window;
  }
  return *QApplication::topLevelWidgets().front();
}

QAbstractButton* ButtonOf(QWidget& dialog,
                          std::initializer_list<QDialogButtonBox::StandardButton> wanted) {
  for (auto* box : dialog.findChildren<QDialogButtonBox*>()) {
    for (const auto which : wanted) {
      QAbstractButton* button = box->button(which);
      if (button != nullptr && CanBeUsed(*button)) return button;
    }
  }
  return nullptr;
}

}  // namespace

void RandomUser::TakeStep() {
  if (QWidget* popup = QApplication::activePopupWidget()) return InPopup(*popup);
  if (QWidget* dialog = QApplication::activeModalWidget()) return InDialog(*dialog);
  InWindows();
}

void RandomUser::ClickOn(QWidget& widget, QPoint place, Qt::MouseButton button) {
  tell_("click " + PathTo(widget) + " at " + std::to_string(place.x()) + "," +
        std::to_string(place.y()) + (button == Qt::MiddleButton ? " with the middle button" : ""));
  Hands::Click(widget, place, button);
}

void RandomUser::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  tell_("press " + QKeySequence(key | modifiers).toString().toStdString());
  Hands::Press(key, modifiers);
}

QPoint RandomUser::PlaceOn(const QWidget& widget) {
  const QRect seen = widget.visibleRegion().boundingRect();
  return {dice_.Between(seen.left(), seen.right()), dice_.Between(seen.top(), seen.bottom())};
}

void RandomUser::InPopup(QWidget& popup) {
  if (auto* menu = qobject_cast<QMenu*>(&popup)) return InMenu(*menu);
  auto* list = popup.findChild<QAbstractItemView*>();
  const bool chooses = list != nullptr && list->model()->rowCount() > 0 && !dice_.OneIn(3);
  if (!chooses) return dice_.OneIn(3) ? Press(Qt::Key_Escape) : PressKey();
  const int row = dice_.Between(0, list->model()->rowCount() - 1);
  const QModelIndex index = list->model()->index(row, 0);
  list->scrollTo(index);
  ClickOn(*list->viewport(), list->visualRect(index).center());
}

void RandomUser::InMenu(QMenu& menu) {
  QList<QAction*> entries;
  for (QAction* entry : menu.actions()) {
    if (entry->isEnabled() && entry->isVisible() && !entry->isSeparator()) entries += entry;
  }
  if (entries.isEmpty() || dice_.OneIn(8)) return Press(Qt::Key_Escape);
  if (dice_.OneIn(4)) return PressKey();
  QAction& entry = OneOf(entries, dice_);
  tell_("choose " + entry.objectName().toStdString() + " \"" + entry.text().toStdString() + "\"");
  Hands::Click(menu, menu.actionGeometry(&entry).center());
}

void RandomUser::InDialog(QWidget& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) return InMessageBox(*box);
  if (auto* files = qobject_cast<QFileDialog*>(&dialog)) return InFileDialog(*files);
  if (qobject_cast<QInputDialog*>(&dialog) != nullptr) return InInputBox(dialog);
  if (dialog.inherits("QPrintDialog")) return InPrinterDialog(dialog);
  constexpr std::array kWeights{12, 2, 2, 4};
  switch (dice_.Weighed(kWeights)) {
    case 0:
      return ClickSomewhere(dialog);
    case 1:
      return Press(Qt::Key_Escape);
    case 2:
      return CloseWindow(dialog);
    default:
      return PressKey();
  }
}

void RandomUser::InMessageBox(QMessageBox& box) {
  constexpr std::array kWeights{12, 1, 1, 1, 1};
  switch (dice_.Weighed(kWeights)) {
    case 0: {
      auto buttons = box.buttons();
      QAbstractButton* button = dice_.OneOf(buttons);
      tell_("answer \"" + box.text().left(60).toStdString() +
            "\": " + button->text().toStdString());
      return Hands::Click(*button, button->rect().center());
    }
    case 1:
      return Press(Qt::Key_Escape);
    case 2:
      return Press(Qt::Key_Return);
    case 3:
      return CloseWindow(box);
    default:
      return PressKey();
  }
}

void RandomUser::InFileDialog(QFileDialog& dialog) {
  if (dice_.OneIn(5)) {
    const KeyPress press = dice_.OneOf(kKeysOfFileDialog);
    return Press(press.key, press.modifiers);
  }
  const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
  const bool texts = dialog.nameFilters().join(u' ').contains(QLatin1String("*.txt"));
  const bool broken = !saves && !texts && dice_.OneIn(12);
  QStringList names = saves    ? UserFiles::Targets()
                      : texts  ? UserFiles::Texts()
                      : broken ? UserFiles::BrokenDecks()
                               : UserFiles::GoodDecks();
  const QString name = dice_.OneOf(names);
  auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  line->setText(files_.PathOf(name));
  QAbstractButton* accept =
      dice_.OneIn(6) ? nullptr : ButtonOf(dialog, {QDialogButtonBox::Open, QDialogButtonBox::Save});
  if (accept == nullptr) accept = ButtonOf(dialog, {QDialogButtonBox::Cancel});
  tell_("in \"" + dialog.windowTitle().toStdString() + "\" name \"" + name.toStdString() + "\", " +
        accept->text().toStdString());
  Hands::Click(*accept, accept->rect().center());
}

void RandomUser::InInputBox(QWidget& dialog) {
  if (dice_.OneIn(3)) return TypeText();
  auto* line = dialog.findChild<QLineEdit*>();
  if (dice_.OneIn(3)) line->setText(QString::number(dice_.Between(-1, 205)));
  QAbstractButton* button =
      ButtonOf(dialog, {dice_.OneIn(4) ? QDialogButtonBox::Cancel : QDialogButtonBox::Ok});
  tell_("in \"" + dialog.windowTitle().toStdString() + "\" enter \"" + line->text().toStdString() +
        "\", " + button->text().toStdString());
  Hands::Click(*button, button->rect().center());
}

void RandomUser::InPrinterDialog(QWidget& dialog) {
  auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  if (file != nullptr) file->setText(files_.PathOf(QStringLiteral("print.pdf")));
  QAbstractButton* button =
      ButtonOf(dialog, {dice_.OneIn(3) ? QDialogButtonBox::Cancel : QDialogButtonBox::Ok});
  if (button == nullptr) return Press(Qt::Key_Escape);
  tell_("in \"" + dialog.windowTitle().toStdString() + "\" " + button->text().toStdString());
  Hands::Click(*button, button->rect().center());
}

void RandomUser::InWindows() {
  QWidget& window = WindowInFront();
  QWidget& part = PartInUse(window);
  const bool frame = window.objectName() == QLatin1String("MDIForm1");
  if (!frame && dice_.OneIn(4)) return CloseWindow(window);
  if (TakesText(QApplication::focusWidget()) && dice_.OneIn(3)) return TypeText();
  constexpr std::array kWeights{30, 16, 24, 3, 3, 3, 2, 1, 1};
  switch (dice_.Weighed(kWeights)) {
    case 0:
      return dice_.OneIn(3) ? ClickSomewhere(dice_.OneIn(9) ? window : part) : ClickButton(part);
    case 1:
      return OpenMenu();
    case 2:
      return PressKey();
    case 3:
      return TypeText();
    case 4:
      return FillClipboard();
    case 5:
      return PasteByMouse(window);
    case 6:
      return CloseWindow(window);
    case 7:
      return Resize(window);
    default:
      return TurnToAnotherWindow();
  }
}

void RandomUser::ClickSomewhere(QWidget& window) {
  auto widgets = UsableIn(window);
  if (widgets.isEmpty()) return PressKey();
  QWidget& widget = *dice_.OneOf(widgets);
  const QPoint place = PlaceOn(widget);
  constexpr std::array kWeights{12, 2, 2, 2};
  const std::size_t way = dice_.Weighed(kWeights);
  if (way == 0) return ClickOn(widget, place);
  constexpr std::array kWays{"", "double-click ", "drag on ", "turn the wheel on "};
  const QPoint other = PlaceOn(widget);
  tell_(kWays[way] + PathTo(widget));
  if (way == 1) Hands::DoubleClick(widget, place);
  if (way == 2) Hands::Drag(widget, place, other);
  if (way == 3) Hands::Wheel(widget, place, dice_.OneIn(2) ? 1 : -1);
}

void RandomUser::ClickButton(QWidget& window) {
  auto buttons = UsableIn<QAbstractButton>(window);
  if (buttons.isEmpty()) return ClickSomewhere(window);
  QAbstractButton& button = OneOf(buttons, dice_);
  ClickOn(button, button.rect().center());
}

void RandomUser::OpenMenu() {
  auto* frame = qobject_cast<QMainWindow*>(&WindowInFront());
  if (frame == nullptr) return PressKey();
  QList<QAction*> menus;
  for (QAction* menu : frame->menuBar()->actions()) {
    if (menu->isVisible() && menu->isEnabled()) menus += menu;
  }
  if (menus.isEmpty()) return PressKey();
  QAction& menu = OneOf(menus, dice_);
  tell_("open the menu " + menu.objectName().toStdString());
  Hands::Click(*frame->menuBar(), frame->menuBar()->actionGeometry(&menu).center());
}

void RandomUser::PressKey() {
  if (!dice_.OneIn(3)) {
    const KeyPress press = dice_.OneOf(kKeys);
    return Press(press.key, press.modifiers);
  }
  const auto letter = static_cast<Qt::Key>(Qt::Key_A + dice_.Between(0, 25));
  const bool alt = dice_.OneIn(2) || QApplication::activePopupWidget() != nullptr;
  Press(letter, alt ? Qt::AltModifier : Qt::NoModifier);
}

void RandomUser::TypeText() {
  static const QStringList texts{QStringLiteral("word"),
                                 QStringLiteral("two words "),
                                 QStringLiteral("7"),
                                 QStringLiteral("-1"),
                                 QStringLiteral("1e9"),
                                 QStringLiteral("&A && B"),
                                 QStringLiteral("ÄÖ é \u20ac"),
                                 QStringLiteral("\u4e00\u4e8c"),
                                 QStringLiteral("THREE WORDS IN"),
                                 QString(70, u'W')};
  const QString text = dice_.OneIn(4) ? ToQString(dice_.OneOf(kHostileTexts)) : dice_.OneOf(texts);
  tell_("type \"" + text.toStdString() + "\"");
  Hands::Type(text);
}

void RandomUser::FillClipboard() {
  const QClipboard::Mode mode = dice_.OneIn(2) ? QClipboard::Clipboard : QClipboard::Selection;
  QClipboard& clipboard = *QApplication::clipboard();
  const std::string where = mode == QClipboard::Clipboard ? "clipboard" : "selection";
  switch (dice_.Below(4)) {
    case 0:
      tell_("empty the " + where);
      return clipboard.clear(mode);
    case 1: {
      tell_("put what is no text into the " + where);
      auto* data = new QMimeData;
      data->setData(QStringLiteral("application/x-other"), "bytes");
      return clipboard.setMimeData(data, mode);
    }
    case 2:
      tell_("put lines into the " + where);
      return clipboard.setText(QStringLiteral("one\r\ntwo\nthree\rfour\tfive\n").repeated(20),
                               mode);
    default:
      tell_("put a word into the " + where);
      return clipboard.setText(QStringLiteral("pasted"), mode);
  }
}

void RandomUser::PasteByMouse(QWidget& window) {
  QList<QWidget*> boxes;
  for (QWidget* widget : UsableIn(window)) {
    if (TakesText(widget)) boxes += widget;
  }
  if (boxes.isEmpty()) return FillClipboard();
  QWidget& box = *dice_.OneOf(boxes);
  ClickOn(box, box.rect().center(), Qt::MiddleButton);
}

/// A child window of the frame more often than the frame.
void RandomUser::CloseWindow(QWidget& window) {
  auto* area = window.findChild<QMdiArea*>();
  QWidget* child = area == nullptr ? nullptr : area->activeSubWindow();
  const bool outer = child == nullptr || dice_.OneIn(6);
  QWidget& closed = outer ? window : *child;
  tell_("close " + NameOf(closed));
  closed.close();
}

void RandomUser::Resize(QWidget& window) {
  const QSize size(dice_.Between(200, 1200), dice_.Between(150, 900));
  tell_("resize " + NameOf(window) + " to " + std::to_string(size.width()) + "," +
        std::to_string(size.height()));
  window.resize(size);
}

void RandomUser::TurnToAnotherWindow() {
  QList<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->isActiveWindow()) windows += window;
  }
  if (windows.isEmpty()) return PressKey();
  QWidget& other = *dice_.OneOf(windows);
  tell_("turn to " + NameOf(other));
  other.activateWindow();
}

}  // namespace tessara::test
