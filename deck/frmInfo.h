#pragma once

#include "deck/app_context.h"
#include "deck/deck_window.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window.h"

namespace tessara {

/// The deck information window. Its controls are the working copy of the deck's information for
/// as long as it is loaded; a save loads it, and being a child of the frame it then comes on
/// screen. It stays loaded when the deck changes.
class frmInfo : public Form {
 public:
  frmInfo(AppContext& app, Window<DeckWindow> deck);

  ControlArray<Label, 5> Label1;
  ControlArray<Label, 2> Label2;
  Label Label3;
  ControlArray<TextBox, 3> Text1;
  ControlArray<Button, 2> Command1;
  Image Image1;

  [[nodiscard]] bool ShowsOnLoad() const override { return true; }

  void Text1_Change();
  void Command1_Click(int Index);

 protected:
  void Form_Load() override;
  void Form_Activate() override { InfoLoading = false; }
  void Form_Unload(bool& cancel) override;
  void Form_Click() override { app_.frame.CloseAbout(); }

 private:
  void PlaceControls();

  AppContext& app_;
  Window<DeckWindow> deck_;
  /// From Form_Load to Form_Activate: changes of the load itself are no edits.
  bool InfoLoading = false;
};

/// A blank and the value, or the default as it stands where the value is empty.
[[nodiscard]] Text InfoValueOrDefault(const Text& xValue, const Text& xDefault);

/// Copies the controls of the information window into row 0 and the deck strings. Date and type
/// strings stay. Getting at the window loads it where it is not loaded.
void CollectDeckInfo(ProgramState& state, const frmInfo& window);

}  // namespace tessara
