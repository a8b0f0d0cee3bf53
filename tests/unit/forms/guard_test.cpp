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
  RulesFixture fixture;
  fixture.first->Show();
  fixture.first->close.onClick = RaiseSubscript;
  fixture.first->close.Press();
  CHECK(fixture.fakes.messages.shown == std::vector{kReport});
  CHECK(fixture.windows.ExitStatus() == 1);
  CHECK(fixture.renderer.exitStatus == 1);
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
    RulesFixture fixture;
    bool wentOn = false;
    fixture.windows.Run([&] {
      fixture.windows.Run(c.raise);
      wentOn = true;
    });
    CHECK_FALSE(wentOn);
    CHECK(fixture.fakes.messages.shown ==
          std::vector{FakeMessages::Shown{Text(c.report), kStopIcon, u"Tessara"}});
    CHECK(fixture.renderer.exitStatus == 1);
  }
}

TEST_CASE("an error ends the program even where its report can't be shown") {
  RulesFixture fixture;
  fixture.fakes.messages.whileShown = [](const FakeMessages::Shown&) { throw std::bad_alloc(); };
  fixture.windows.Run(RaiseSubscript);
  CHECK(fixture.windows.ExitStatus() == 1);
  fixture.windows.Run([] { FAIL("an event behind the end"); });
}

TEST_CASE("an error inside OnLoad ends the program even where the loader swallows errors") {
  RulesFixture fixture;
  bool swallowed = false;
  bool wentOn = false;
  fixture.prepare = [](RulesForm& form) { form.onLoad = RaiseSubscript; };
  fixture.windows.Run([&] {
    try {
      fixture.first.Loaded();
    } catch (const RunTimeError&) {
      swallowed = true;
    }
    wentOn = true;
  });
  CHECK_FALSE(swallowed);
  CHECK_FALSE(wentOn);
  CHECK(fixture.fakes.messages.shown == std::vector{kReport});
}

TEST_CASE("nothing runs after the program has ended") {
  RulesFixture fixture;
  fixture.first->Show();
  fixture.windows.EndProgram(1);
  int clicks = 0;
  fixture.first->close.onClick = [&] { ++clicks; };
  fixture.first->close.Press();
  CHECK(clicks == 0);
}

TEST_CASE("a modal window during which an error ends the program is not modal any more") {
  RulesFixture fixture;
  fixture.renderer.whileModal = [&](Form&) { fixture.windows.Run(RaiseSubscript); };
  fixture.windows.Run([&] { fixture.first->Show(Modality::kModal); });
  CHECK(fixture.windows.ExitStatus() == 1);
  CHECK(fixture.windows.ModalForm() == nullptr);
}

TEST_CASE("an error that the routine handles by number goes no further") {
  RulesFixture fixture;
  fixture.windows.Run([] {
    try {
      RaiseSubscript();
    } catch (const RunTimeError& error) {
      CHECK(error.Number() == ErrorNumber::kSubscriptOutOfRange);
    }
  });
  CHECK(fixture.fakes.messages.shown.empty());
  CHECK_FALSE(fixture.windows.ExitStatus());
}

TEST_CASE("an event that waited while the program ended is left") {
  RulesFixture fixture;
  bool wentOn = false;
  fixture.windows.Run([&] {
    fixture.windows.EndProgram(1);
    fixture.windows.LeaveIfEnded();
    wentOn = true;
  });
  CHECK_FALSE(wentOn);
}

}  // namespace tessara::test
