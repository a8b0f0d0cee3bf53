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
        {&shape, nullptr, u"", {4500, 150, 600, 600}, u""},
        {&line, nullptr, u"", {4500, 900, 600, 0}, u""},
        {&label, nullptr, u"A && B <b>bold</b>", {150, 150, 3000, 300}, u""},
        {&lineBox, nullptr, u"", {150, 600, 2100, 300}, u"Line"},
        {&areaBox, nullptr, u"", {150, 1050, 2100, 900}, u"Area"},
        {&group, nullptr, u"Group", {150, 2100, 2100, 1200}, u""},
        {&options[0], &group, u"&One", {150, 300, 1500, 255}, u""},
        {&options[1], &group, u"T&wo", {150, 600, 1500, 255}, u""},
        {&check, nullptr, u"C&heck", {150, 3450, 1500, 255}, u""},
        {&combo, nullptr, u"", {2400, 600, 1500, 315}, u"Choice"},
        {&list, nullptr, u"", {2400, 1050, 3000, 1500}, u"Cards"},
        {&pictureBox, nullptr, u"", {2400, 2700, 1755, 555}, u"Box"},
        {&image, nullptr, u"", {4500, 2700, 480, 480}, u"Mark"},
        {&painting, nullptr, u"", {2400, 3450, 1500, 1500}, u"Card"},
        {&arrows[0], nullptr, u"<<", {150, 4500, 600, 375}, u"Back"},
        {&arrows[1], nullptr, u">>", {900, 4500, 600, 375}, u"Forth"},
        {&deleteButton, nullptr, u"&Delete form deck", {4200, 4500, 1455, 495}, u""},
    });
    AddMenus({{&fileMenu, nullptr, u"&File"},
              {&openEntry, &fileMenu, u"&Open", u"Ctrl+O"},
              {&separator, &fileMenu, u"-"},
              {&orderEntry, &fileMenu, u"&Order"},
              {&otherEntry, &fileMenu, u"&Other"},
              {&modeMenu, nullptr, u"&Mode"},
              {&studyEntry, &modeMenu, u"&Study", u"Ctrl+Shift+S"},
              {&helpEntry, &modeMenu, u"&Help", u"F1"}});
    SetPageButtons(arrows[0], arrows[1]);
    SetHelpEntry(helpEntry);
    areaBox.SetMultiLine(true);
    areaBox.SetVerticalScrollBar(true);
    pictureBox.SetPicture({"print/nonflip.png", 117, 37});
    image.SetPicture({"about_mail.png", 32, 32});
    combo.AddItem(u"First");
    combo.AddItem(u"Second");
    list.AddColumn(u"CARD #", 900);
    list.AddColumn(u"FRONT TEXT", 1800);
    list.AddItem(u"1", {u"Paris"});
    list.AddItem(u"2", {u"Rome\r\nand more"});
    list.AddItem(u"3", {u"Oslo"});
    Wire();
  }

  Shape shape{"Shape1"};
  Line line{"Line1"};
  Label label{"Label1"};
  TextBox lineBox{"Text1"};
  TextBox areaBox{"Text2"};
  Frame group{"Frame1"};
  ControlArray<OptionButton, 2> options{"Option1"};
  CheckBox check{"Check1"};
  ComboBox combo{"Combo1"};
  ListView list{"List1"};
  PictureBox pictureBox{"Picture1"};
  Image image{"Image1"};
  SamplePainting painting{"Painting1"};
  ControlArray<Button, 2> arrows{"Command1"};
  Button deleteButton{"Command2"};
  MenuEntry fileMenu{"mnuFile"};
  MenuEntry openEntry{"mnuOpen"};
  MenuEntry separator{"mnu1"};
  MenuEntry orderEntry{"mnuOrder"};
  MenuEntry otherEntry{"mnuOther"};
  MenuEntry modeMenu{"mnuMode"};
  MenuEntry studyEntry{"mnuStudy"};
  MenuEntry helpEntry{"mnuHelpTopic"};
  EventLog log;
  std::function<void()> onLoad;
  bool refusesToGo = false;
  bool hasUseForKeys = false;
  Control* tabTarget = nullptr;

  [[nodiscard]] Control* TabTarget(const Control& from) override {
    return &from == &lineBox ? tabTarget : nullptr;
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
    label.onClick = logs("label");
    label.onMouseMove = logs("over label");
    image.onClick = logs("image");
    check.onClick = logs("check");
    combo.onClick = logs("combo");
    list.onClick = logs("list");
    list.onKeyUp = logs("key up");
    lineBox.onChange = logs("change");
    areaBox.onChange = logs("change");
    lineBox.onKeyPress = [this](char16_t key) { log.Add("key " + ToUtf8(Text(1, key))); };
    lineBox.onGotFocus = logs("got focus");
    lineBox.onLostFocus = logs("lost focus");
    arrows[0].onClick = logs("back");
    arrows[1].onClick = logs("forth");
    deleteButton.onClick = logs("delete");
    options.Wire(&OptionButton::onClick,
                 [this](int index) { log.Add("option " + std::to_string(index)); });
    openEntry.onClick = logs("open");
    orderEntry.onClick = logs("order");
    otherEntry.onClick = logs("other");
    studyEntry.onClick = logs("study");
    helpEntry.onClick = logs("help");
  }
};

/// The frame that holds the samples.
class SampleFrame : public Form {
 public:
  explicit SampleFrame(WindowSystem& system)
      : Form(system, "MDIForm1", FormKind::kFrame, u"Tessara 1.0") {
    AddMenus({{&fileMenu, nullptr, u"&File"},
              {&openEntry, &fileMenu, u"&Open Existing Deck", u"Ctrl+O"},
              {&exitEntry, &fileMenu, u"&Exit", u"Ctrl+Q"}});
    exitEntry.LetKeysWorkAlways();
    openEntry.onClick = [this] { log.Add("frame open"); };
    exitEntry.onClick = [this] { log.Add("frame exit"); };
  }
  MenuEntry fileMenu{"mnuFile"};
  MenuEntry openEntry{"mnuOpen"};
  MenuEntry exitEntry{"mnuExit"};
  EventLog log;
  Text taken = u"/decks/birds.tsr";  ///< the path that can be dropped

  [[nodiscard]] bool TakesFile(const Text& path) override { return path == taken; }

 protected:
  void OnClick() override { log.Add("frame"); }
  void OnDropFile(const Text& path) override { log.Add("dropped " + ToUtf8(path)); }
};

}  // namespace tessara::test
