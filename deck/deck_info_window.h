#pragma once

#include "deck/app_context.h"
#include "deck/life/deck_life.h"
#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"

namespace tessara {

/// The boxes of the deck information.
enum InfoField : int { kTitleField = 0, kAuthorField = 1, kDescriptionField = 2 };

/// The deck information window. Its controls are the working copy of the deck's information for
/// as long as it is loaded; a save loads it, and being a child of the frame it then comes on
/// screen, beside the deck window where there is room. It stays loaded when the deck changes.
class DeckInfoWindow : public Form {
 public:
  /// Outer size in twips.
  static constexpr int kHeight = 4650;
  static constexpr int kWidth = 6270;

  DeckInfoWindow(AppContext& app, Window<DeckLife> deck);

  ControlArray<Label, 5> headings{"Label1"};
  Label date{"Label2(0)"};
  Label kind{"Label2(1)"};
  Label cardCount{"Label3"};
  ControlArray<TextBox, 3> fields{"Text1"};
  Button close{"Command1(0)"};
  Button save{"Command1(1)"};
  Image picture{"Image1"};

  [[nodiscard]] bool ShowsOnLoad() const override { return true; }

  void NoteChange();
  /// Copies the boxes into the table; the file is the deck's own save to write.
  void Save();
  /// Asks where the boxes have not been copied, and unloads the window.
  void Close();

 protected:
  void OnLoad() override;
  void OnActivate() override { loading_ = false; }
  void OnUnload(bool& cancel) override;
  void OnClick() override { app_.frame.CloseAbout(); }

 private:
  void PlaceControls();
  /// Where the frame has room for both; else the window stays at its place.
  void StandBesideDeck();

  AppContext& app_;
  Window<DeckLife> deck_;
  /// From OnLoad to OnActivate: changes of the load itself are no edits.
  bool loading_ = false;
};

/// A blank and the value, or the default as it stands where the value is empty.
[[nodiscard]] Text InfoValueOrDefault(const Text& value, const Text& defaultValue);

/// Copies the controls of the information window into row 0 and the deck strings. Date and type
/// strings stay. Getting at the window loads it where it is not loaded.
void CollectDeckInfo(ProgramState& state, const DeckInfoWindow& window);

}  // namespace tessara
