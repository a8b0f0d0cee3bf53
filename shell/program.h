#pragma once

#include <memory>

#include "authoring/question_builder.h"
#include "authoring/text_card_builder.h"
#include "deck/app_context.h"
#include "deck/deck_info_window.h"
#include "deck/file/file_number.h"
#include "deck/life/keeping_boxes.h"
#include "forms/window.h"
#include "forms/window_system.h"
#include "printing/print_window.h"
#include "printing/separation_window.h"
#include "printing/spreadsheet_job.h"
#include "shell/about_box.h"
#include "shell/backdrop.h"
#include "shell/program_frame.h"
#include "shell/set_up_window.h"
#include "shell/splash.h"
#include "viewer/deck_window.h"

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
  [[nodiscard]] Window<ProgramFrame> FrameWindow() { return Window<ProgramFrame>(frameSlot_); }
  [[nodiscard]] Window<DeckWindow> DeckWindowOf() { return Window<DeckWindow>(deckSlot_); }
  [[nodiscard]] Window<DeckInfoWindow> InfoWindow() { return Window<DeckInfoWindow>(infoSlot_); }
  [[nodiscard]] Window<TextCardBuilder> TextBuilder() {
    return Window<TextCardBuilder>(textBuilderSlot_);
  }
  [[nodiscard]] Window<QuestionBuilder> QuestionBuilderOf() {
    return Window<QuestionBuilder>(questionBuilderSlot_);
  }
  [[nodiscard]] Window<PrintWindow> PrintWindowOf() { return Window<PrintWindow>(printSlot_); }
  [[nodiscard]] Window<SeparationWindow> SeparationSteps() {
    return Window<SeparationWindow>(separationSlot_);
  }
  [[nodiscard]] Window<SetUpWindow> SetUpWindowOf() { return Window<SetUpWindow>(setUpSlot_); }
  [[nodiscard]] Window<AboutBox> AboutBoxOf() { return Window<AboutBox>(aboutSlot_); }

 private:
  // The frame as the windows below know it.
  [[nodiscard]] int Width() const override { return ScaleWidth() + kBorderAcross; }
  [[nodiscard]] int Height() const override { return ScaleHeight() + kBorderDown; }
  [[nodiscard]] int ScaleWidth() const override { return windows_.RendererOf().FrameScaleWidth(); }
  [[nodiscard]] int ScaleHeight() const override {
    return windows_.RendererOf().FrameScaleHeight();
  }
  [[nodiscard]] const ImageList& CardPictures() const override { return cardPictures_; }
  [[nodiscard]] const ImageList& BackdropTiles() const override { return backdropTiles_; }
  void CloseAbout() override { aboutSlot_.Unload(); }
  void CloseSplash() override { splashSlot_.Unload(); }

  void Start(const Text& commandLine);
  [[nodiscard]] bool RefuseSecondInstance();
  void PlaceEmptyDeckWindow();
  std::unique_ptr<DeckWindow> MakeDeckWindow();

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
  ImageList cardPictures_;
  ImageList backdropTiles_;
  AppContext app_{windows_, machine_, state_, *this, unsaved_};

  WindowSlot<ProgramFrame> frameSlot_;
  WindowSlot<DeckWindow> deckSlot_;
  WindowSlot<DeckInfoWindow> infoSlot_;
  WindowSlot<TextCardBuilder> textBuilderSlot_;
  WindowSlot<QuestionBuilder> questionBuilderSlot_;
  WindowSlot<PrintWindow> printSlot_;
  WindowSlot<SeparationWindow> separationSlot_;
  WindowSlot<SetUpWindow> setUpSlot_;
  WindowSlot<AboutBox> aboutSlot_;
  WindowSlot<BackdropSurface> surfaceSlot_;
  WindowSlot<Splash> splashSlot_;
};

}  // namespace tessara
