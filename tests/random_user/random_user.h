#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>

#include "tests/random_user/dice.h"
#include "tests/random_user/user_files.h"

class QFileDialog;
class QMenu;
class QMessageBox;

namespace tessara::test {

/// What a user does next, by chance, with whatever is in front: a menu, a box, a dialog or a
/// window.
class RandomUser {
 public:
  /// Each step is told before it is taken.
  using Tell = std::function<void(const std::string& step)>;

  RandomUser(Dice& dice, const UserFiles& files, Tell tell)
      : dice_(dice), files_(files), tell_(std::move(tell)) {}

  void TakeStep();

 private:
  void InPopup(QWidget& popup);
  void InMenu(QMenu& menu);
  void InDialog(QWidget& dialog);
  void InMessageBox(QMessageBox& box);
  void InFileDialog(QFileDialog& dialog);
  void InInputBox(QWidget& dialog);
  void InPrinterDialog(QWidget& dialog);
  void InWindows();

  void ClickSomewhere(QWidget& window);
  void ClickButton(QWidget& window);
  void OpenMenu();
  void PressKey();
  void TypeText();
  void FillClipboard();
  void PasteByMouse(QWidget& window);
  void CloseWindow(QWidget& window);
  void Resize(QWidget& window);
  void TurnToAnotherWindow();

  void ClickOn(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  QPoint PlaceOn(const QWidget& widget);

  Dice& dice_;
  const UserFiles& files_;
  Tell tell_;
};

}  // namespace tessara::test
