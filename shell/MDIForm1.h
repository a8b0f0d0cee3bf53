#pragma once

#include "deck/app_context.h"
#include "deck/file_number.h"
#include "forms/form.h"
#include "forms/window.h"
#include "forms/window_system.h"
#include "shell/FrmSetUp.h"
#include "shell/backdrop.h"
#include "shell/frmAbout.h"

namespace tessara {

class frmInstruct;
class frmMain;

/// The windows that the frame's commands open.
struct FrameWindows {
  Window<frmMain> deck;
  Window<Frm1> surface;
  Window<FrmSetUp> setUp;
  Window<frmAbout> about;
  Window<frmInstruct> instructions;
};

/// The frame window: the menus where no deck window is up, the tiled backdrop, help and About.
class MDIForm1 : public Form {
 public:
  MDIForm1(AppContext& app, FileNumber& fileNumber, FrameWindows windows);

  MenuEntry mnuFile, mnuNew, mnuStdTessara, mnuExtTessara, mnuOPenExisting, mnuSetup, mnuImportFile,
      mnu1, mnuExit;
  MenuEntry mnuHelp, mnuHelpTopics, mnuAbout, mnuSC;

  [[nodiscard]] int ScaleWidth() const override;
  [[nodiscard]] int ScaleHeight() const override;

  void ShowHelpTopic();
  void ShowAbout();
  void ShowInstructions();

  void mnuStdTessara_Click();
  void mnuExtTessara_Click();
  void mnuOPenExisting_Click();
  void mnuSetup_Click();
  void mnuImportFile_Click();

 protected:
  void Form_Load() override;
  void Form_Click() override { windows_.about.Unload(); }
  void Form_Unload(bool& cancel) override;
  /// The file menu is for the empty frame: its commands fill the table, and ask nothing.
  void WindowsChanged() override { mnuFile.SetEnabled(System().FrameIsEmpty()); }

 private:
  void PlaceMenuEntries();
  void WireMenus();
  [[nodiscard]] const Picture& BackDropPicture() const;

  AppContext& app_;
  FileNumber& fileNumber_;
  FrameWindows windows_;
};

}  // namespace tessara
