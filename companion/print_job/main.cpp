// Prints a deck to a PDF file without a display: the print window of the whole program, driven as
// a user drives it.
// usage: tessara-print DECK OUTPUT.pdf cards|flip|listing NUMBER...

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <glib.h>
#include <qlogging.h>
#include <string>
#include <vector>

#include "adapters/freedesktop/user_document_types.h"
#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "adapters/posix/code_page_of_locale.h"
#include "adapters/posix/copies/posix_safety_copies.h"
#include "adapters/posix/executable_folder.h"
#include "adapters/posix/posix_clock.h"
#include "adapters/posix/posix_file_system.h"
#include "adapters/posix/process/prepare_process.h"
#include "adapters/qt/devices/lazy_print_surface.h"
#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/devices/qt_settings_store.h"
#include "base/utf8.h"
#include "companion/print_job/answers.h"
#include "companion/print_job/silent_renderer.h"
#include "machine/machine.h"
#include "printing/print_copies.h"
#include "printing/spreadsheet_job.h"
#include "shell/program.h"

namespace tessara {
namespace {

namespace fs = std::filesystem;

/// What the arguments ask for.
struct PrintRequest {
  Text deck;
  Text pdfFile;
  std::string way;
  std::vector<int> cards;
};

PrintRequest RequestOf(int argc, char** argv) {
  PrintRequest request{FromUtf8(argv[1]), FromUtf8(argv[2]), argv[3], {}};
  for (int at = 4; at < argc; ++at) request.cards.push_back(std::atoi(argv[at]));
  return request;
}

void PressPrint(PrintWindow& window, const PrintRequest& request) {
  window.flatSheet.SetTicked(request.way == "listing");
  window.flipPrint.SetTicked(request.way == "flip");
  for (const int card : request.cards) {
    if (card >= 1 && card <= window.cards.Count()) window.cards.SetChecked(card, true);
  }
  window.print.SetEnabled(window.CanPrint());
  window.print.Press();
}

void Tell(const Text& text) {
  std::fprintf(stderr, "tessara-print: %s\n", ToUtf8(text).c_str());
}

/// False where the job did not come to its end.
bool Print(Machine& machine, const AnsweredBoxes& boxes, const PrintRequest& request) {
  Program program(machine);
  SilentRenderer renderer;
  program.Windows().SetRenderer(renderer);
  program.State().printing.canPrintCards = SpreadsheetJob(machine).TestSpreadsheetServer();
  if (request.way != "listing" && !program.State().printing.canPrintCards) {
    Tell(u"cards are printed by LibreOffice Calc, which is not there");
    return false;
  }
  program.Windows().Run([&] {
    program.State().start.commandLineFile = request.deck;
    program.DeckWindowOf().Loaded();
    PressPrint(program.PrintWindowOf().Loaded(), request);
  });
  const bool printed = boxes.LastTitle() == kFinishedTitle;
  if (!printed) Tell(boxes.LastText());
  return printed;
}

int RunPrint(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  const PrintRequest request = RequestOf(argc, argv);
  const fs::path folder = ExecutableFolder();
  const Text folderText = FromUtf8(folder.string());
  const CodePage codePage = CodePageOfLocale();
  PosixFileSystem files;
  PosixSafetyCopies copies{fs::path()};
  PosixClock clock;
  PrintModuleSource printing(folderText);
  LazyPrintSurface printer(printing);
  AnsweredBoxes messages;
  AnsweredDialogs dialogs(request.pdfFile);
  QtSettingsStore settings(fs::path(g_get_user_config_dir()) / "Tessara.conf");
  QtDesktop desktop([](const Text&) {}, [](const Text&, const Text&) {});
  UserDocumentTypes documentTypes(fs::path(), [](const auto&) {});
  LoadedSpreadsheet spreadsheet(folderText);
  Machine machine{messages, dialogs,       settings,    files,   copies,   clock,
                  desktop,  documentTypes, spreadsheet, printer, codePage, folderText};
  return Print(machine, messages, request) ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace tessara

int main(int argc, char** argv) {
  constexpr int kLeastArguments = 5;
  if (argc < kLeastArguments) return EXIT_FAILURE;
  tessara::PrepareProcess();
  // Its remarks on fonts and folders are no part of what the job tells.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return tessara::RunPrint(argc, argv);
}
