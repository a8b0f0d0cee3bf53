#pragma once

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "forms/window_system.h"
#include "tests/desktop/support/event_loops.h"
#include "tests/desktop/support/sample_forms.h"
#include "tests/support/fakes/fake_messages.h"

namespace tessara::test {

/// A frame on screen, and windows to open in it.
struct Fixture {
  FakeMessages messages;
  WindowSystem windows{messages};
  QtRenderer renderer{windows, TESSARA_TEST_PICTURES};
  std::function<void(SampleForm&)> prepare;

  WindowSlot<SampleFrame> frameSlot{windows,
                                    [this] { return std::make_unique<SampleFrame>(windows); }};
  WindowSlot<SampleForm> childSlot{windows, [this] { return Make("frmChild", FormKind::kChild); }};
  WindowSlot<SampleForm> otherSlot{windows, [this] { return Make("frmOther", FormKind::kChild); }};
  WindowSlot<SampleForm> dialogSlot{windows,
                                    [this] { return Make("frmDialog", FormKind::kDialog); }};
  Window<SampleFrame> frame{frameSlot};
  Window<SampleForm> child{childSlot};
  Window<SampleForm> other{otherSlot};
  Window<SampleForm> dialog{dialogSlot};

  Fixture() {
    StartAnew();
    windows.SetRenderer(renderer);
    frame->Show();
    const bool active = QTest::qWaitForWindowActive(Top("MDIForm1"));
    if (!active) throw std::logic_error("the frame did not become active");
  }

  /// The child window, on screen and in front.
  SampleForm& ShowChild() {
    child->Show();
    Settle();
    child->log.Take();
    return *child.operator->();
  }

  static void Settle() { QApplication::processEvents(); }

  /// A window's top widget, null where it is not there.
  static QWidget* Top(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QLatin1String(name)) return widget;
    }
    return nullptr;
  }

  /// A control's widget in the child window or the window named.
  template <class W = QWidget>
  static W& Of(const char* control, const char* window = "frmChild") {
    W* widget = Top(window)->findChild<W*>(QLatin1String(control));
    if (widget == nullptr) throw std::logic_error(std::string("no widget ") + control);
    return *widget;
  }

 private:
  std::unique_ptr<SampleForm> Make(const char* name, FormKind kind) {
    auto form = std::make_unique<SampleForm>(windows, name, kind);
    if (prepare) prepare(*form);
    return form;
  }
};

}  // namespace tessara::test
