#pragma once

#include <string>
#include <vector>

#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "tests/support/test_fixture.h"

namespace tessara::test {

/// A child window with one control of each sort that the rules speak of, and a log of its events.
class RulesForm : public Form {
 public:
  RulesForm(WindowSystem& system, std::string name, std::vector<std::string>& log)
      : Form(system, std::move(name), FormKind::kChild, u"Rules"), log_(log) {
    SetWidth(3000);
    SetHeight(2000);
    AddControls({{&group, nullptr, u"", {0, 0, 900, 900}, u""},
                 {&options[0], &group, u"&One", {0, 0, 10, 10}, u""},
                 {&options[1], &group, u"&Two", {0, 0, 10, 10}, u""},
                 {&loneOption, nullptr, u"Other", {0, 0, 10, 10}, u""},
                 {&check, nullptr, u"C&heck", {0, 0, 10, 10}, u""},
                 {&textBox, nullptr, u"", {0, 0, 900, 10}, u"Text"},
                 {&close, nullptr, u"&Close", {0, 0, 10, 10}, u""}});
    AddMenus({{&fileMenu, nullptr, u"&File"}, {&openEntry, &fileMenu, u"Open"}});
  }

  Frame group{"Frame1"};
  ControlArray<OptionButton, 2> options{"Option1"};
  OptionButton loneOption{"Option2"};
  CheckBox check{"Check1"};
  TextBox textBox{"Text1"};
  Button close{"Command1"};
  MenuEntry fileMenu{"mnuFile"};
  MenuEntry openEntry{"mnuOpen"};
  std::function<void()> onLoad;
  std::function<void(bool&)> onUnload;

 protected:
  void OnLoad() override {
    Log("load");
    if (onLoad) onLoad();
  }
  void OnUnload(bool& cancel) override {
    Log("unload");
    if (onUnload) onUnload(cancel);
  }
  void OnActivate() override { Log("activate"); }
  void OnResize() override { Log("resize"); }
  void OnLostFocus() override { Log("lost"); }

 private:
  void Log(const char* event) { log_.push_back(Name() + " " + event); }
  std::vector<std::string>& log_;
};

/// Two windows over fakes.
struct RulesFixture : TestFixture {
  std::vector<std::string> log;
  std::function<void(RulesForm&)> prepare;
  WindowSlot<RulesForm> firstSlot{windows, [this] { return Make("First"); }};
  WindowSlot<RulesForm> secondSlot{windows, [this] { return Make("Second"); }};
  Window<RulesForm> first{firstSlot};
  Window<RulesForm> second{secondSlot};

  std::vector<std::string> Take() { return std::exchange(log, {}); }

 private:
  std::unique_ptr<RulesForm> Make(const char* name) {
    auto form = std::make_unique<RulesForm>(windows, name, log);
    if (prepare) prepare(*form);
    return form;
  }
};

using Events = std::vector<std::string>;

}  // namespace tessara::test
