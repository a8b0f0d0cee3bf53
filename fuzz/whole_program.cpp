// The whole program, without a display, over decks and texts at random, and a user who does
// anything. After each event the program is in order, or has ended with a report.

#include <cmath>
#include <cstdlib>
#include <vector>

#include "fuzz/random_files.h"
#include "fuzz/random_machine.h"
#include "fuzz/require.h"
#include "shell/program.h"
#include "tests/support/fakes/headless_renderer.h"

namespace tessara::fuzz {

namespace {

/// What the user does to the windows on screen.
class User {
 public:
  User(ByteSource& bytes, WindowSystem& windows) : bytes_(bytes), windows_(windows) {}

  void DoSomething() {
    std::vector<Form*> forms;
    for (Form* form : windows_.LoadedForms()) {
      if (form->Visible()) forms.push_back(form);
    }
    if (forms.empty()) return;
    // The window in front more often than another.
    const std::size_t which = bytes_.Below(2 * forms.size());
    Form* const front = windows_.ActiveForm();
    Use(which < forms.size() || front == nullptr ? *forms[which % forms.size()] : *front);
  }

 private:
  void Use(Form& form) {
    const std::uint8_t what = bytes_.Next();
    const std::vector<Control*> controls = ControlsOf(form);
    if (what >= 110 && !controls.empty()) {
      UseControl(*bytes_.OneOf(controls));
    } else if (what >= 30) {
      UseMenu(BarOnShow().Menus());
    } else {
      UseWindow(form, what);
    }
  }

  /// More often than not those that the user can reach and that do something.
  std::vector<Control*> ControlsOf(const Form& form) {
    if (bytes_.Next() < 20) return form.Controls();
    std::vector<Control*> controls;
    for (Control* control : form.Controls()) {
      if (control->Reachable() && control->TakesFocus()) controls.push_back(control);
    }
    return controls;
  }

  void UseWindow(Form& form, std::uint8_t what) {
    switch (what % 8) {
      case 0:
        return form.UserActivate();
      case 1:
        return form.UserClick();
      case 2:
        return form.UserMouseMove();
      case 3:
        return form.UserClose();
      case 4:
        return form.UserMove(bytes_.Next() * 100, bytes_.Next() * 100);
      case 5:
        return static_cast<void>(form.UserAccelerator(bytes_.Next()));
      case 6:
        return static_cast<void>(form.UserReturn());
      default:
        return static_cast<void>(form.UserEscape());
    }
  }

  /// The window in front of the frame has its own menu bar, or the frame shows its own.
  [[nodiscard]] Form& BarOnShow() const {
    Form* const child = windows_.ActiveChild();
    return child == nullptr || child->Menus().empty() ? *windows_.FrameForm() : *child;
  }

  void UseMenu(const std::vector<MenuEntry*>& entries) {
    if (entries.empty()) return;
    MenuEntry& entry = *bytes_.OneOf(entries);
    entry.Entries().empty() ? entry.Press() : UseMenu(entry.Entries());
  }

  void UseControl(Control& control) {
    const std::uint8_t what = bytes_.Next();
    if (what > 240) return control.UserMouseMove();
    if (what > 200) return control.Owner().UserFocus(control);
    switch (control.Kind()) {
      case ControlKind::kButton:
        return static_cast<Button&>(control).Press();
      case ControlKind::kOptionButton:
        return static_cast<OptionButton&>(control).Press();
      case ControlKind::kCheckBox:
        return static_cast<CheckBox&>(control).Press();
      case ControlKind::kImage:
        return static_cast<Image&>(control).UserClick();
      case ControlKind::kLabel:
        return static_cast<Label&>(control).UserClick();
      case ControlKind::kTextBox:
        return Type(static_cast<TextBox&>(control));
      case ControlKind::kComboBox:
        return static_cast<ComboBox&>(control).UserSelect(bytes_.Next() - 3);
      case ControlKind::kListView:
        return UseList(static_cast<ListView&>(control));
      default:
        return;
    }
  }

  void Type(TextBox& box) {
    const std::size_t length = box.TextOf().size();
    const std::size_t place = bytes_.Below(length + 1);
    const std::size_t removed = bytes_.Below(length - place + 1);
    const std::size_t times = bytes_.Next() > 250 ? 40 : 1;
    const Text piece = bytes_.TakeText(12);
    Text inserted;
    for (std::size_t count = 0; count < times; ++count) inserted += piece;
    for (const char16_t character : piece) box.UserKeyPress(character);
    box.UserEdit({place, removed, inserted});
    box.UserKeyUp();
  }

  void UseList(ListView& list) {
    const int item = bytes_.Next() - 1;
    switch (bytes_.Below(4)) {
      case 0:
        return list.UserClick(item, ListView::HitPart::kText);
      case 1:
        return list.UserSelectByKey(item);
      case 2:
        return list.UserToggleByKey();
      default:
        return list.UserClick(item, ListView::HitPart::kCheckBox);
    }
  }

  ByteSource& bytes_;
  WindowSystem& windows_;
};

/// One run of the program from its start.
class Run {
 public:
  Run(const std::uint8_t* data, std::size_t size) : bytes_(data, size) {
    program_.Windows().SetRenderer(renderer_);
    renderer_.whileModal = [this](Form& form) { UseModal(form); };
  }

  void Go() {
    random_.fakes.files.Put(u"/d/a.tsr", TakeDeck(bytes_));
    random_.fakes.files.Put(u"/d/b.tsr", TakeDeck(bytes_));
    random_.fakes.files.Put(u"/d/ext.txt", TakeImport(bytes_, "EXT"));
    random_.fakes.files.Put(u"/d/std.txt", TakeImport(bytes_, "STD"));
    program_.Main(bytes_.Next() % 2 == 0 ? Text() : kPaths[bytes_.Below(std::size(kPaths))]);
    Check();
    while (!bytes_.Empty() && !program_.Windows().ExitStatus()) {
      user_.DoSomething();
      Check();
    }
  }

 private:
  void UseModal(Form& form) {
    for (int events = 0; events < 3 && form.Visible() && !bytes_.Empty(); ++events) {
      user_.DoSomething();
    }
    if (form.Loaded()) form.Unload();
  }

  void Check() {
    CheckEnd();
    if (program_.Windows().ExitStatus()) return;
    CheckState(program_.State());
    CheckWindows();
  }

  void CheckEnd() {
    const auto status = program_.Windows().ExitStatus();
    Require(renderer_.exitStatus == status.value_or(-1));
    const bool reported = random_.messages.lastText.starts_with(u"Run-time error '");
    Require((status == 1) == reported);
  }

  static void CheckState(const ProgramState& state) {
    // Below zero where a builder that stayed open deletes a card of a deck that has been closed.
    Require(std::abs(state.deck.cardCount) < kRows);
    Require(std::abs(state.deck.currentCard) < kRows);
    Require(state.deck.kind == kStandardDeck || state.deck.kind == kExtendedDeck);
    Require(state.deck.mode >= kStudyMode && state.deck.mode <= kTestMode);
    Require(state.deck.testPoints >= 0 &&
            state.deck.testPoints * 2 == std::floor(state.deck.testPoints * 2));
    for (int row = 0; row < kRows; ++row) {
      const std::int16_t present = state.deck.cardPresent.At(row);
      Require(present == 0 || present == 1);
    }
  }

  void CheckWindows() {
    const WindowSystem& windows = program_.Windows();
    Require(windows.ModalForm() == nullptr);
    const Form* const active = windows.ActiveForm();
    Require(active == nullptr || (active->Loaded() && active->Visible()));
    for (const Form* form : windows.LoadedForms()) {
      Require(form->Loaded());
      const Control* const focused = form->FocusedControl();
      Require(focused == nullptr || &focused->Owner() == form);
    }
  }

  ByteSource bytes_;
  RandomMachine random_{bytes_};
  Machine machine_ = random_.Get();
  test::HeadlessRenderer renderer_;
  Program program_{machine_};
  User user_{bytes_, program_.Windows()};
};

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessara::fuzz::Run(data, size).Go();
  return 0;
}
