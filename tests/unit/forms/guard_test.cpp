#include <doctest/doctest.h>
#include <filesystem>
#include <functional>
#include <new>
#include <stdexcept>

#include "base/run_time_error.h"
#include "tests/unit/forms/test_windows.h"

namespace tessara::test {

namespace {

[[noreturn]] void RaiseSubscript() {
  throw RunTimeError(ErrorNumber::kSubscriptOutOfRange);
}

const FakeMessages::Shown kReport{u"Run-time error '9':\r\n\r\nSubscript out of range", kStopIcon,
                                  u"Tessara"};

}  // namespace

TEST_CASE("an error that a handler lets out is reported and ends the program") {
  RulesDesk desk;
  desk.first->Show();
  desk.first->close.onClick = RaiseSubscript;
  desk.first->close.Press();
  CHECK(desk.fakes.messages.shown == std::vector{kReport});
  CHECK(desk.windows.ExitStatus() == 1);
  CHECK(desk.renderer.exitStatus == 1);
}

TEST_CASE("an exception of the standard library ends the program as a run-time error does") {
  struct Case {
    std::function<void()> raise;
    TextView report;
  };
  const Case cases[] = {
      {[] { throw std::bad_alloc(); }, u"Run-time error '7':\r\n\r\nOut of memory"},
      {[] { std::filesystem::create_directory("/proc/none"); },
       u"Run-time error '53':\r\n\r\nFile not found"},
      {[] { throw std::logic_error("never"); }, u"Run-time error '51':\r\n\r\nInternal error"},
  };
  for (const Case& c : cases) {
    RulesDesk desk;
    bool wentOn = false;
    desk.windows.Run([&] {
      desk.windows.Run(c.raise);
      wentOn = true;
    });
    CHECK_FALSE(wentOn);
    CHECK(desk.fakes.messages.shown ==
          std::vector{FakeMessages::Shown{Text(c.report), kStopIcon, u"Tessara"}});
    CHECK(desk.renderer.exitStatus == 1);
  }
}

TEST_CASE("an error ends the program even where its report can't be shown") {
  RulesDesk desk;
  desk.fakes.messages.whileShown = [](const FakeMessages::Shown&) { throw std::bad_alloc(); };
  desk.windows.Run(RaiseSubscript);
  CHECK(desk.windows.ExitStatus() == 1);
  desk.windows.Run([] { FAIL("an event behind the end"); });
}

TEST_CASE("an error inside OnLoad ends the program even where the loader swallows errors") {
  RulesDesk desk;
  bool swallowed = false;
  bool wentOn = false;
  desk.prepare = [](RulesForm& form) { form.onLoad = RaiseSubscript; };
  desk.windows.Run([&] {
    try {
      desk.first.Loaded();
    } catch (const RunTimeError&) {
      swallowed = true;
    }
    wentOn = true;
  });
  CHECK_FALSE(swallowed);
  CHECK_FALSE(wentOn);
  CHECK(desk.fakes.messages.shown == std::vector{kReport});
}

TEST_CASE("nothing runs after the program has ended") {
  RulesDesk desk;
  desk.first->Show();
  desk.windows.EndProgram(1);
  int clicks = 0;
  desk.first->close.onClick = [&] { ++clicks; };
  desk.first->close.Press();
  CHECK(clicks == 0);
}

TEST_CASE("a modal window during which an error ends the program is not modal any more") {
  RulesDesk desk;
  desk.renderer.whileModal = [&](Form&) { desk.windows.Run(RaiseSubscript); };
  desk.windows.Run([&] { desk.first->Show(Modality::kModal); });
  CHECK(desk.windows.ExitStatus() == 1);
  CHECK(desk.windows.ModalForm() == nullptr);
}

TEST_CASE("an error that the routine handles by number goes no further") {
  RulesDesk desk;
  desk.windows.Run([] {
    try {
      RaiseSubscript();
    } catch (const RunTimeError& error) {
      CHECK(error.Number() == ErrorNumber::kSubscriptOutOfRange);
    }
  });
  CHECK(desk.fakes.messages.shown.empty());
  CHECK_FALSE(desk.windows.ExitStatus());
}

TEST_CASE("an event that waited while the program ended is left") {
  RulesDesk desk;
  bool wentOn = false;
  desk.windows.Run([&] {
    desk.windows.EndProgram(1);
    desk.windows.LeaveIfEnded();
    wentOn = true;
  });
  CHECK_FALSE(wentOn);
}

}  // namespace tessara::test
