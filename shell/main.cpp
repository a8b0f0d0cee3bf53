// Puts the pieces together: the real machine, the renderer, the program.

#include <QIcon>
#include <filesystem>
#include <glib.h>
#include <optional>
#include <string>
#include <system_error>
#include <thread>

#include "adapters/freedesktop/notifications.h"
#include "adapters/freedesktop/user_document_types.h"
#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "adapters/posix/code_page_of_locale.h"
#include "adapters/posix/copies/posix_safety_copies.h"
#include "adapters/posix/executable_folder.h"
#include "adapters/posix/posix_clock.h"
#include "adapters/posix/posix_file_system.h"
#include "adapters/posix/process/prepare_process.h"
#include "adapters/qt/devices/help_loader.h"
#include "adapters/qt/devices/lazy_print_surface.h"
#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "adapters/qt/devices/qt_message_boxes.h"
#include "adapters/qt/devices/qt_settings_store.h"
#include "adapters/qt/look/png_picture.h"
#include "adapters/qt/look/visible_outlines.h"
#include "adapters/qt/text/fonts_ahead.h"
#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/windows/guarded_application.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "base/utf8.h"
#include "shell/program.h"

namespace tessara {
namespace {

namespace fs = std::filesystem;

/// The arguments joined with a blank, as one absolute path; empty without arguments.
Text CommandLineOf(int argc, char** argv) {
  std::string joined;
  for (int at = 1; at < argc; ++at) joined += (at == 1 ? "" : " ") + std::string(argv[at]);
  if (joined.empty()) return {};
  std::error_code unknown;
  const fs::path path = fs::absolute(joined, unknown);
  const fs::path shorter = path.lexically_normal();
  // Behind a link, "folder/.." is another folder than the one before it.
  return FromUtf8((fs::equivalent(path, shorter, unknown) ? shorter : path).string());
}

void NameApplication(const fs::path& folder) {
  QApplication::setApplicationName("Tessara");
  QApplication::setApplicationVersion(TESSARA_VERSION);
  // The desktop entry's name: every desktop finds icon and name by it.
  QGuiApplication::setDesktopFileName("tessara");
  const fs::path icon = folder / "icons/hicolor/48x48/apps/tessara.png";
  QApplication::setWindowIcon(
      QIcon(QPixmap::fromImage(ReadPng(QString::fromStdString(icon.string())))));
}

int RunTessara(int argc, char** argv) {
  std::jthread fontConfiguration(ReadFontConfiguration);
  GuardedApplication application(argc, argv);
  fontConfiguration.join();
  const std::jthread fontList(ListFonts);
  ShowOutlines();
  const fs::path folder = ExecutableFolder();
  NameApplication(folder);
  const Text folderText = FromUtf8(folder.string());
  const CodePage codePage = CodePageOfLocale();
  PosixFileSystem files;
  PosixSafetyCopies copies(fs::path(g_get_user_state_dir()) / "Tessara" / "copies");
  PosixClock clock;
  PrintModuleSource printing(folderText);
  LazyPrintSurface printer(printing);
  QtMessageBoxes messages;
  QtDialogs dialogs(printing);
  QtSettingsStore settings(fs::path(g_get_user_config_dir()) / "Tessara.conf");
  QtDesktop desktop(
      [&folderText](const Text& path) { ShowHelpWithModule(folderText, path); },
      [&folder](const Text& title, const Text& text) { NotifyUser(folder, title, text); });
  UserDocumentTypes documentTypes(g_get_user_data_dir(), StartUpdateTools);
  LoadedSpreadsheet spreadsheet(folderText);
  Machine machine{messages, dialogs,       settings,    files,   copies,   clock,
                  desktop,  documentTypes, spreadsheet, printer, codePage, folderText};
  Program program(machine);
  application.SetWindows(program.Windows());
  messages.SetWindows(program.Windows());
  dialogs.SetWindows(program.Windows());
  QtRenderer renderer(program.Windows(), ToQString(folderText + u"/pictures"));
  program.Windows().SetRenderer(renderer);
  program.Main(CommandLineOf(argc, argv));
  const std::optional<int> ended = program.Windows().ExitStatus();
  return ended ? *ended : QApplication::exec();
}

}  // namespace
}  // namespace tessara

int main(int argc, char** argv) {
  tessara::PrepareProcess();
  return tessara::RunTessara(argc, argv);
}
