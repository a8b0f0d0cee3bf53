#include "shell/program.h"

#include "authoring/open_builder.h"
#include "platform/conversion.h"
#include "platform/desktop.h"
#include "platform/message_box.h"
#include "platform/settings_store.h"
#include "printing/spreadsheet_job.h"
#include "shell/document_association.h"
#include "shell/picture_lists.h"
#include "shell/settings.h"

namespace tessara {

Program::Program(Machine& machine)
    : unsaved_(state_, machine),
      messages_(machine.messages, unsaved_),
      dialogs_(machine.dialogs, unsaved_),
      machine_(WithKeeping(machine)),
      windows_(messages_, machine.codePage),
      fileNumber_(machine_.files),
      spreadsheetJob_(machine_),
      imgWallPaper_(CardPictures()),
      bkg_(BackdropTiles()),
      frameSlot_(windows_,
                 [this] {
                   return std::make_unique<MDIForm1>(
                       app_, fileNumber_,
                       FrameWindows{DeckWindowOf(), Window<Frm1>(surfaceSlot_), SetUpWindow(),
                                    AboutBox(), Instructions()});
                 }),
      deckSlot_(windows_, [this] { return MakeDeckWindow(); }),
      infoSlot_(windows_, [this] { return std::make_unique<frmInfo>(app_, DeckWindowOf()); }),
      essaySlot_(windows_, [this] { return std::make_unique<frmEssay>(app_, DeckWindowOf()); }),
      questionSlot_(windows_,
                    [this] { return std::make_unique<frmQuestion>(app_, DeckWindowOf()); }),
      printSlot_(
          windows_,
          [this] { return std::make_unique<PrintCard>(app_, spreadsheetJob_, DeckWindowOf()); }),
      instructSlot_(windows_, [this] { return std::make_unique<frmInstruct>(windows_); }),
      setUpSlot_(windows_, [this] { return std::make_unique<FrmSetUp>(app_); }),
      aboutSlot_(windows_, [this] { return std::make_unique<frmAbout>(app_); }),
      surfaceSlot_(windows_, [this] { return std::make_unique<Frm1>(windows_); }),
      splashSlot_(windows_, [this] { return std::make_unique<Splash>(windows_); }) {
  windows_.SetAfterEvent([this] { unsaved_.EventEnds(); });
}

Machine Program::WithKeeping(Machine& given) {
  return {messages_,         dialogs_,      given.settings, given.files,
          given.copies,      given.clock,   given.desktop,  given.classes,
          given.spreadsheet, given.printer, given.codePage, given.programFolder};
}

std::unique_ptr<Form> Program::MakeDeckWindow() {
  auto deck = std::make_unique<frmMain>(app_, fileNumber_, InfoWindow());
  deck->SetQuestionBuilder(questionSlot_);
  deck->mnuACTTD.onClick = [this] {
    OpenBuilder(app_, DeckWindowOf(), TextBuilder(), QuestionBuilder());
  };
  deck->mnuPrint.onClick = [this] { mnuPrint_Click(app_, PrintWindow()); };
  deck->mnuHelpTopic.onClick = [this] { FrameWindow()->ShowHelpTopic(); };
  deck->mnuAbout.onClick = [this] { FrameWindow()->ShowAbout(); };
  deck->mnuSC.onClick = [this] { FrameWindow()->ShowInstructions(); };
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
  if (!path.empty()) state_.CommandLineFile = path;
  LoadProgramSettings(machine_.settings, state_);
  state_.CanPrintCards = spreadsheetJob_.TestSpreadsheetServer();
  if (state_.FirstLoad) RegisterDocumentType(machine_);
  if (NumberOf(state_.ShowSplash) == 1) SplashPause(Window<Splash>(splashSlot_), machine_.desktop);
  FrameWindow()->SetCaption(u"Tessara 1.0");
  FrameWindow()->Show();
  DeckWindowOf().Loaded();
  if (state_.DeckFromCommandLine) {
    state_.DeckFromCommandLine = false;
  } else {
    PlaceEmptyDeckWindow();
  }
}

void Program::PlaceEmptyDeckWindow() {
  frmMain& deck = DeckWindowOf().Loaded();
  deck.SetHeight(6000);
  deck.SetWidth(7230);
  deck.SetLeft((ScaleWidth() - deck.Width()) / 2);
  deck.SetTop((ScaleHeight() - deck.Height()) / 2);
  deck.Show();
  deck.ConfigureStandardCard(kStudyMode);
  deck.Command3[DeckWindow::kFlip].SetCaption(u"&Show Answer");
  deck.Command3[DeckWindow::kFlip].SetEnabled(false);
  deck.ConfigureStandardCard(kStudyMode);
  deck.Command3[DeckWindow::kFlip].SetCaption(u"&Show Back");
  state_.DeckType = kStandardDeck;
  deck.mnuMode.SetEnabled(false);
  deck.mnuGTP.SetEnabled(false);
  deck.ConfigModeMenu(true, true, true);
  deck.ChkModeMenu(kStudyMode);
  state_.CardPresent.Set(kInfoRow, 1);
  state_.DeckOnFile = false;
}

}  // namespace tessara
