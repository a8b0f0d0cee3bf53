#include "shell/program.h"

#include "authoring/open_builder.h"
#include "base/conversion.h"
#include "machine/desktop.h"
#include "machine/message_box.h"
#include "machine/settings_store.h"
#include "printing/spreadsheet_job.h"
#include "shell/documents.h"
#include "shell/picture_lists.h"
#include "shell/settings.h"

namespace tessara {

Program::Program(Machine& machine)
    : unsaved_(state_, machine),
      messages_(machine.messages, unsaved_),
      dialogs_(machine.dialogs, unsaved_),
      machine_(WithKeeping(machine)),
      windows_(messages_),
      fileNumber_(machine_.files),
      spreadsheetJob_(machine_),
      cardPictures_(MakeCardPictures()),
      backdropTiles_(MakeBackdropTiles()),
      frameSlot_(windows_,
                 [this] {
                   return std::make_unique<ProgramFrame>(
                       app_, fileNumber_,
                       FrameWindows{DeckWindowOf(), Window<BackdropSurface>(surfaceSlot_),
                                    SetUpWindowOf(), AboutBoxOf(), SeparationSteps()});
                 }),
      deckSlot_(windows_, [this] { return MakeDeckWindow(); }),
      infoSlot_(windows_,
                [this] { return std::make_unique<DeckInfoWindow>(app_, DeckWindowOf()); }),
      textBuilderSlot_(windows_,
                       [this] { return std::make_unique<TextCardBuilder>(app_, DeckWindowOf()); }),
      questionBuilderSlot_(
          windows_, [this] { return std::make_unique<QuestionBuilder>(app_, DeckWindowOf()); }),
      printSlot_(
          windows_,
          [this] { return std::make_unique<PrintWindow>(app_, spreadsheetJob_, DeckWindowOf()); }),
      separationSlot_(windows_, [this] { return std::make_unique<SeparationWindow>(windows_); }),
      setUpSlot_(windows_, [this] { return std::make_unique<SetUpWindow>(app_); }),
      aboutSlot_(windows_, [this] { return std::make_unique<AboutBox>(app_); }),
      surfaceSlot_(windows_, [this] { return std::make_unique<BackdropSurface>(windows_); }),
      splashSlot_(windows_, [this] { return std::make_unique<Splash>(windows_); }) {
  windows_.SetAfterEvent([this] { unsaved_.EventEnds(); });
}

Machine Program::WithKeeping(Machine& given) {
  return {messages_,         dialogs_,      given.settings, given.files,
          given.copies,      given.clock,   given.desktop,  given.documentTypes,
          given.spreadsheet, given.printer, given.codePage, given.programFolder};
}

std::unique_ptr<DeckWindow> Program::MakeDeckWindow() {
  auto deck = std::make_unique<DeckWindow>(app_, fileNumber_, InfoWindow());
  deck->SetQuestionBuilder(questionBuilderSlot_);
  deck->createOrEditCard.onClick = [this] {
    OpenBuilder(app_, DeckWindowOf(), TextBuilder(), QuestionBuilderOf());
  };
  deck->printDeck.onClick = [this] { OpenPrintWindow(app_, PrintWindowOf()); };
  deck->helpTopics.onClick = [this] { FrameWindow()->ShowHelpTopic(); };
  deck->about.onClick = [this] { FrameWindow()->ShowAbout(); };
  deck->separatingCards.onClick = [this] { FrameWindow()->ShowInstructions(); };
  return deck;
}

void Program::Main(const Text& commandLine) {
  windows_.Run([this, &commandLine] { Start(commandLine); });
}

bool Program::RefuseSecondInstance() {
  if (!machine_.desktop.PreviousInstance()) return false;
  machine_.messages.Show(
      u"Tessara is already open. Please close the last deck before opening another.", kStopIcon,
      u"Another Tessara Open");
  windows_.EndProgram(0);
  return true;
}

void Program::Start(const Text& commandLine) {
  if (RefuseSecondInstance()) return;
  const Text path = TellOfLeftDecks(machine_, commandLine);
  if (!path.empty()) state_.start.commandLineFile = path;
  LoadProgramSettings(machine_.settings, state_);
  state_.printing.canPrintCards = spreadsheetJob_.TestSpreadsheetServer();
  if (state_.settings.firstLoad) RegisterDocumentType(machine_);
  if (NumberOf(state_.settings.showSplash) == 1)
    SplashPause(Window<Splash>(splashSlot_), machine_.desktop);
  FrameWindow()->SetCaption(u"Tessara 1.0");
  FrameWindow()->Show();
  DeckWindowOf().Loaded();
  if (state_.start.deckFromCommandLine) {
    state_.start.deckFromCommandLine = false;
  } else {
    PlaceEmptyDeckWindow();
  }
}

void Program::PlaceEmptyDeckWindow() {
  DeckWindow& deck = DeckWindowOf().Loaded();
  deck.SetHeight(6000);
  deck.SetWidth(7230);
  deck.SetLeft((ScaleWidth() - deck.Width()) / 2);
  deck.SetTop((ScaleHeight() - deck.Height()) / 2);
  deck.Show();
  deck.ConfigureStandardCard(kStudyMode);
  deck.OfferFlip(FlipAction::kShowAnswer);
  deck.flip.SetEnabled(false);
  deck.ConfigureStandardCard(kStudyMode);
  deck.OfferFlip(FlipAction::kShowBack);
  state_.deck.kind = kStandardDeck;
  deck.modeMenu.SetEnabled(false);
  deck.goToCard.SetEnabled(false);
  deck.ConfigModeMenu(true, true, true);
  deck.MarkModeInMenu(kStudyMode);
  state_.deck.cardPresent.Set(kInfoRow, 1);
  state_.deck.onFile = false;
}

}  // namespace tessara
