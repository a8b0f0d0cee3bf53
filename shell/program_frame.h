#pragma once

#include "deck/app_context.h"
#include "deck/file/file_number.h"
#include "forms/form.h"
#include "forms/window.h"
#include "forms/window_system.h"
#include "shell/about_box.h"
#include "shell/backdrop.h"
#include "shell/set_up_window.h"

namespace tessara {

class SeparationWindow;
class DeckWindow;

/// The windows that the frame's commands open.
struct FrameWindows {
  Window<DeckWindow> deck;
  Window<BackdropSurface> surface;
  Window<SetUpWindow> setUp;
  Window<AboutBox> about;
  Window<SeparationWindow> instructions;
};

/// The frame window: the menus where no deck window is up, the tiled backdrop, help and About.
class ProgramFrame : public Form {
 public:
  ProgramFrame(AppContext& app, FileNumber& fileNumber, FrameWindows windows);

  MenuEntry fileMenu{"mnuFile"};
  MenuEntry newMenu{"mnuNew"};
  MenuEntry newStandardDeck{"mnuStdTessara"};
  MenuEntry newExtendedDeck{"mnuExtTessara"};
  MenuEntry openExistingDeck{"mnuOPenExisting"};
  MenuEntry setUp{"mnuSetup"};
  MenuEntry importTextFile{"mnuImportFile"};
  MenuEntry aboveExit{"mnu1"};
  MenuEntry exit{"mnuExit"};
  MenuEntry helpMenu{"mnuHelp"};
  MenuEntry helpTopics{"mnuHelpTopics"};
  MenuEntry about{"mnuAbout"};
  MenuEntry separatingCards{"mnuSC"};

  [[nodiscard]] int ScaleWidth() const override;
  [[nodiscard]] int ScaleHeight() const override;
  /// A deck where the open command on show is on, a text where the import command is.
  [[nodiscard]] bool TakesFile(const Text& path) override { return EntryFor(path) != nullptr; }

  void ShowHelpTopic();
  void ShowAbout();
  void ShowInstructions();

  void NewStandardDeck();
  void NewExtendedDeck();
  void OpenExistingDeck();
  void ShowSetUp();
  void ImportDeck();
  void Exit();

 protected:
  void OnLoad() override;
  void OnClick() override { windows_.about.Unload(); }
  void OnUnload(bool& cancel) override;
  void OnDropFile(const Text& path) override;
  /// The file menu is for the empty frame: its commands fill the table, and ask nothing.
  void WindowsChanged() override { fileMenu.SetEnabled(System().FrameIsEmpty()); }

 private:
  void PlaceMenuEntries();
  void WireMenus();
  /// The entry that a dropped file stands for, if it is on; else null.
  [[nodiscard]] MenuEntry* EntryFor(const Text& path);
  void EmptyTable();
  void OpenDeckOf(const Text& path);

  AppContext& app_;
  FileNumber& fileNumber_;
  FrameWindows windows_;
};

}  // namespace tessara
