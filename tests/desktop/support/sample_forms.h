#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "forms/controls/controls.h"
#include "forms/controls/painted_control.h"
#include "forms/form.h"
#include "forms/window.h"

namespace tessara::test {

/// What ran, in order: "got focus, change".
class EventLog {
 public:
  void Add(const std::string& event) { events_ += events_.empty() ? event : ", " + event; }
  /// What ran since the last call.
  std::string Take() { return std::exchange(events_, {}); }

 private:
  std::string events_;
};

/// A painted control with a red upper half; its text takes `textHeight` pixels.
class SamplePainting : public PaintedControl {
 public:
  using PaintedControl::PaintedControl;
  double textHeight = 10;
  Text text = u"Painting";
  std::function<void()> whenPainted;

  [[nodiscard]] bool TakesFocus() const override { return true; }
  void Paint(Canvas& canvas, const Rect& size, double scroll) const override {
    if (whenPainted) whenPainted();
    canvas.FillRect({0, -scroll, size.width, size.height / 2}, FixedColor(255, 0, 0));
  }
  [[nodiscard]] double ScrollRange(Canvas& canvas, const Rect& size) const override {
    (void)canvas;
    return std::max(0.0, textHeight - size.height);
  }
  [[nodiscard]] Rect ScrollArea(const Rect& size) const override { return size; }
  [[nodiscard]] Text Description() const override { return text; }
  [[nodiscard]] std::vector<Property> Properties() const override {
    return {{"CardText", text}, {"FrontRule", true}};
  }
  void Write(const Text& newText, double newHeight) {
    text = newText;
    textHeight = newHeight;
    Changed(Aspect::kContent);
  }
};

/// A window with one control of each kind, and a log of its events.
class SampleForm : public Form {
 public:
  SampleForm(WindowSystem& system, std::string name, FormKind kind)
      : Form(system, std::move(name), kind, u"Sample") {
    SetWidth(6120);
    SetHeight(5640);
    AddControls({
        {&Shape1, nullptr, u"", {4500, 150, 600, 600}, u""},
        {&Line1, nullptr, u"", {4500, 900, 600, 0}, u""},
        {&Label1, nullptr, u"A && B <b>bold</b>", {150, 150, 3000, 300}, u""},
        {&Text1, nullptr, u"", {150, 600, 2100, 300}, u"Line"},
        {&Text2, nullptr, u"", {150, 1050, 2100, 900}, u"Area"},
        {&Frame1, nullptr, u"Group", {150, 2100, 2100, 1200}, u""},
        {&Option1[0], &Frame1, u"&One", {150, 300, 1500, 255}, u""},
        {&Option1[1], &Frame1, u"T&wo", {150, 600, 1500, 255}, u""},
        {&Check1, nullptr, u"C&heck", {150, 3450, 1500, 255}, u""},
        {&Combo1, nullptr, u"", {2400, 600, 1500, 315}, u"Choice"},
        {&List1, nullptr, u"", {2400, 1050, 3000, 1500}, u"Cards"},
        {&Picture1, nullptr, u"", {2400, 2700, 1755, 555}, u"Box"},
        {&Image1, nullptr, u"", {4500, 2700, 480, 480}, u"Mark"},
        {&Painting1, nullptr, u"", {2400, 3450, 1500, 1500}, u"Card"},
        {&Command1[0], nullptr, u"<<", {150, 4500, 600, 375}, u"Back"},
        {&Command1[1], nullptr, u">>", {900, 4500, 600, 375}, u"Forth"},
        {&Command2, nullptr, u"&Delete form deck", {4200, 4500, 1455, 495}, u""},
    });
    AddMenus({{&mnuFile, nullptr, u"&File"},
              {&mnuOpen, &mnuFile, u"&Open", u"Ctrl+O"},
              {&mnu1, &mnuFile, u"-"},
              {&mnuOrder, &mnuFile, u"&Order"},
              {&mnuOther, &mnuFile, u"&Other"},
              {&mnuMode, nullptr, u"&Mode"},
              {&mnuStudy, &mnuMode, u"&Study", u"Ctrl+Shift+S"},
              {&mnuHelpTopic, &mnuMode, u"&Help", u"F1"}});
    SetPageButtons(Command1[0], Command1[1]);
    SetHelpEntry(mnuHelpTopic);
    Text2.SetMultiLine(true);
    Text2.SetVerticalScrollBar(true);
    Picture1.SetPicture({"print/nonflip.png", 117, 37});
    Image1.SetPicture({"about_mail.png", 32, 32});
    Combo1.AddItem(u"First");
    Combo1.AddItem(u"Second");
    List1.AddColumn(u"CARD #", 900);
    List1.AddColumn(u"FRONT TEXT", 1800);
    List1.AddItem(u"1", {u"Paris"});
    List1.AddItem(u"2", {u"Rome\r\nand more"});
    List1.AddItem(u"3", {u"Oslo"});
    Wire();
  }

  Shape Shape1{"Shape1"};
  Line Line1{"Line1"};
  Label Label1{"Label1"};
  TextBox Text1{"Text1"};
  TextBox Text2{"Text2"};
  Frame Frame1{"Frame1"};
  ControlArray<OptionButton, 2> Option1{"Option1"};
  CheckBox Check1{"Check1"};
  ComboBox Combo1{"Combo1"};
  ListView List1{"List1"};
  PictureBox Picture1{"Picture1"};
  Image Image1{"Image1"};
  SamplePainting Painting1{"Painting1"};
  ControlArray<Button, 2> Command1{"Command1"};
  Button Command2{"Command2"};
  MenuEntry mnuFile{"mnuFile"};
  MenuEntry mnuOpen{"mnuOpen"};
  MenuEntry mnu1{"mnu1"};
  MenuEntry mnuOrder{"mnuOrder"};
  MenuEntry mnuOther{"mnuOther"};
  MenuEntry mnuMode{"mnuMode"};
  MenuEntry mnuStudy{"mnuStudy"};
  MenuEntry mnuHelpTopic{"mnuHelpTopic"};
  EventLog log;
  std::function<void()> onLoad;
  bool refusesToGo = false;
  bool hasUseForKeys = false;
  Control* tabTarget = nullptr;

  [[nodiscard]] Control* TabTarget(const Control& from) override {
    return &from == &Text1 ? tabTarget : nullptr;
  }

 protected:
  void OnLoad() override {
    if (onLoad) onLoad();
  }
  void OnUnload(bool& cancel) override { cancel = refusesToGo; }
  void OnClick() override { log.Add("form"); }
  void OnMouseMove() override { log.Add("move"); }
  bool OnKey(WindowKey key) override {
    constexpr const char* kNames[] = {"left", "right", "space", "keep"};
    if (hasUseForKeys) log.Add(kNames[static_cast<int>(key)]);
    return hasUseForKeys;
  }

 private:
  void Wire() {
    const auto logs = [this](const char* what) { return [this, what] { log.Add(what); }; };
    Label1.onClick = logs("label");
    Label1.onMouseMove = logs("over label");
    Image1.onClick = logs("image");
    Check1.onClick = logs("check");
    Combo1.onClick = logs("combo");
    List1.onClick = logs("list");
    List1.onKeyUp = logs("key up");
    Text1.onChange = logs("change");
    Text2.onChange = logs("change");
    Text1.onKeyPress = [this](char16_t key) { log.Add("key " + ToUtf8(Text(1, key))); };
    Text1.onGotFocus = logs("got focus");
    Text1.onLostFocus = logs("lost focus");
    Command1[0].onClick = logs("back");
    Command1[1].onClick = logs("forth");
    Command2.onClick = logs("delete");
    Option1.Wire(&OptionButton::onClick,
                 [this](int index) { log.Add("option " + std::to_string(index)); });
    mnuOpen.onClick = logs("open");
    mnuOrder.onClick = logs("order");
    mnuOther.onClick = logs("other");
    mnuStudy.onClick = logs("study");
    mnuHelpTopic.onClick = logs("help");
  }
};

/// The frame that holds the samples.
class SampleFrame : public Form {
 public:
  explicit SampleFrame(WindowSystem& system)
      : Form(system, "MDIForm1", FormKind::kFrame, u"Tessara 1.0") {
    AddMenus({{&mnuFile, nullptr, u"&File"},
              {&mnuOpen, &mnuFile, u"&Open Existing Deck", u"Ctrl+O"},
              {&mnuExit, &mnuFile, u"&Exit", u"Ctrl+Q"}});
    mnuExit.LetKeysWorkAlways();
    mnuOpen.onClick = [this] { log.Add("frame open"); };
    mnuExit.onClick = [this] { log.Add("frame exit"); };
  }
  MenuEntry mnuFile{"mnuFile"};
  MenuEntry mnuOpen{"mnuOpen"};
  MenuEntry mnuExit{"mnuExit"};
  EventLog log;
  Text taken = u"/decks/birds.tsr";  ///< the path that can be dropped

  [[nodiscard]] bool TakesFile(const Text& path) override { return path == taken; }

 protected:
  void OnClick() override { log.Add("frame"); }
  void OnDropFile(const Text& path) override { log.Add("dropped " + ToUtf8(path)); }
};

}  // namespace tessara::test
