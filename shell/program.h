#pragma once

#include <memory>

#include "authoring/frmEssay.h"
#include "authoring/frmQuestion.h"
#include "deck/app_context.h"
#include "deck/file_number.h"
#include "deck/frmInfo.h"
#include "deck/keeping_boxes.h"
#include "forms/window.h"
#include "forms/window_system.h"
#include "printing/PrintCard.h"
#include "printing/frmInstruct.h"
#include "printing/spreadsheet_job.h"
#include "shell/FrmSetUp.h"
#include "shell/MDIForm1.h"
#include "shell/Splash.h"
#include "shell/backdrop.h"
#include "shell/frmAbout.h"
#include "viewer/frmMain.h"

namespace tessara {

/// The whole program over a machine: its state, its windows, how they are joined,
/// and its only entry point. Without a display of its own, so that tests run it whole.
class Program : private AppFrame {
 public:
  /// The renderer is set on Windows() before Main.
  explicit Program(Machine& machine);

  /// Starts the program: refuses a second instance, reads the settings, brings up the frame and
  /// the deck window, with the deck of the command line where there is one. From then on the
  /// window system drives everything.
  void Main(const Text& commandLine);

  [[nodiscard]] WindowSystem& Windows() { return windows_; }
  [[nodiscard]] ProgramState& State() { return state_; }
  [[nodiscard]] Window<MDIForm1> FrameWindow() { return Window<MDIForm1>(frameSlot_); }
  [[nodiscard]] Window<frmMain> DeckWindowOf() { return Window<frmMain>(deckSlot_); }
  [[nodiscard]] Window<frmInfo> InfoWindow() { return Window<frmInfo>(infoSlot_); }
  [[nodiscard]] Window<frmEssay> TextBuilder() { return Window<frmEssay>(essaySlot_); }
  [[nodiscard]] Window<frmQuestion> QuestionBuilder() { return Window<frmQuestion>(questionSlot_); }
  [[nodiscard]] Window<PrintCard> PrintWindow() { return Window<PrintCard>(printSlot_); }
  [[nodiscard]] Window<frmInstruct> Instructions() { return Window<frmInstruct>(instructSlot_); }
  [[nodiscard]] Window<FrmSetUp> SetUpWindow() { return Window<FrmSetUp>(setUpSlot_); }
  [[nodiscard]] Window<frmAbout> AboutBox() { return Window<frmAbout>(aboutSlot_); }

 private:
  // The frame as the windows below know it.
  [[nodiscard]] int Width() const override { return ScaleWidth() + kBorderAcross; }
  [[nodiscard]] int Height() const override { return ScaleHeight() + kBorderDown; }
  [[nodiscard]] int ScaleWidth() const override { return windows_.Shown().FrameScaleWidth(); }
  [[nodiscard]] int ScaleHeight() const override { return windows_.Shown().FrameScaleHeight(); }
  [[nodiscard]] const ImageList& imgWallPaper() const override { return imgWallPaper_; }
  [[nodiscard]] const ImageList& BKG() const override { return bkg_; }
  void CloseAbout() override { aboutSlot_.Unload(); }
  void CloseSplash() override { splashSlot_.Unload(); }

  void Start(const Text& commandLine);
  [[nodiscard]] bool RefuseSecondInstance();
  void PlaceEmptyDeckWindow();
  std::unique_ptr<Form> MakeDeckWindow();

  /// The machine that was given, with boxes and dialogs that keep the unsaved deck.
  [[nodiscard]] Machine WithKeeping(Machine& given);

  ProgramState state_;
  UnsavedDeck unsaved_;
  KeepingMessages messages_;
  KeepingDialogs dialogs_;
  Machine machine_;
  WindowSystem windows_;
  FileNumber fileNumber_;
  SpreadsheetJob spreadsheetJob_;
  ImageList imgWallPaper_;
  ImageList bkg_;
  AppContext app_{windows_, machine_, state_, *this, unsaved_};

  WindowSlot frameSlot_;
  WindowSlot deckSlot_;
  WindowSlot infoSlot_;
  WindowSlot essaySlot_;
  WindowSlot questionSlot_;
  WindowSlot printSlot_;
  WindowSlot instructSlot_;
  WindowSlot setUpSlot_;
  WindowSlot aboutSlot_;
  WindowSlot surfaceSlot_;
  WindowSlot splashSlot_;
};

}  // namespace tessara
