#pragma once

#include <QLineEdit>
#include <doctest/doctest.h>

#include "tests/desktop/support/program_on_screen.h"

namespace tessara::test {

// What a user who writes cards does by the keyboard alone.

/// Tab by Tab.
inline void GoTo(const char* control) {
  constexpr int kMostTabs = 16;
  for (int tabs = 0; ProgramOnScreen::Focus() != control && tabs < kMostTabs; ++tabs) {
    ProgramOnScreen::Key(Qt::Key_Tab);
  }
  REQUIRE(ProgramOnScreen::Focus() == control);
}

inline void Write(const char* control, TextView text) {
  GoTo(control);
  ProgramOnScreen::Type(text);
}

inline void Pick(const char* option) {
  GoTo(option);
  ProgramOnScreen::Key(Qt::Key_Space);
}

inline void OpenBuilder() {
  ProgramOnScreen::ChooseByKeys("mnuFile", "mnuACTTD");
}

/// "Close" carries the letter of "Change" too, which goes to the button only; a blank presses it.
inline void PressChange() {
  ProgramOnScreen::Alt(Qt::Key_C);
  ProgramOnScreen::Key(Qt::Key_Space);
}

/// The next file dialog gets the name of a file in the folder, and Return.
inline void TypePathWhenAsked(ProgramOnScreen& fixture, const char* file) {
  fixture.WhenAsked([&fixture, file](QWidget&) {
    auto* name = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    REQUIRE(name != nullptr);
    QTest::keyClicks(name, QString::fromStdString((fixture.folder / file).string()));
    QTest::keyClick(name, Qt::Key_Return);
  });
}

/// Saves under the name, and takes the box that says so away.
inline std::string SaveByKeys(ProgramOnScreen& fixture, const char* command) {
  TypePathWhenAsked(fixture, "new.tsr");
  fixture.AnswerByKey(Qt::Key_Return);
  ProgramOnScreen::ChooseByKeys("mnuFile", command);
  CHECK(fixture.TakeAsked().back() ==
        "This file has been saved to " + (fixture.folder / "new.tsr").string());
  return fixture.folder.Read("new.tsr");
}

}  // namespace tessara::test
