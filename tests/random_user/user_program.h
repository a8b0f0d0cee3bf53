#pragma once

#include <functional>

#include "adapters/posix/copies/posix_safety_copies.h"
#include "adapters/posix/posix_file_system.h"
#include "adapters/qt/devices/help_loader.h"
#include "adapters/qt/devices/lazy_print_surface.h"
#include "adapters/qt/devices/print_module.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "adapters/qt/devices/qt_message_boxes.h"
#include "adapters/qt/windows/qt_renderer.h"
#include "base/utf8.h"
#include "shell/program.h"
#include "tests/random_user/kept_work.h"
#include "tests/random_user/story.h"
#include "tests/random_user/user_files.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/recording_spreadsheet.h"

namespace tessara::test {

/// The boxes on screen; tells what they have said and how they were answered.
class ToldBoxes : public MessageBoxes {
 public:
  ToldBoxes(Story& story, KeptWork& work) : story_(story), work_(work) {}

  void SetWindows(const WindowSystem& windows) { shown_.SetWindows(windows); }
  MessageAnswer Show(const Text& text, int flags, const Text& title) override;

 private:
  QtMessageBoxes shown_;
  Story& story_;
  KeptWork& work_;
};

/// The dialogs on screen; tells which file was chosen.
class ToldDialogs : public QtDialogs {
 public:
  ToldDialogs(PrintModuleSource& printing, Story& story) : QtDialogs(printing), story_(story) {}

  Text AskFile(const FileDialogRequest& request) override;

 private:
  Story& story_;
};

/// A desktop that shows the help and starts no other program.
class UserDesktop : public FakeDesktop {
 public:
  void ShowHelp(const Text& path) override;
  void Yield() override;
};

/// The whole program with real windows, boxes, dialogs, files, help and printer dialog. What it
/// prints two-sided goes to a recording server, what it prints flat into PDF files.
class UserProgram {
 public:
  UserProgram();

  UserFiles files;
  Story story;

  /// The cards that are lost since the last look.
  std::size_t LostCards();

 private:
  [[nodiscard]] bool BuilderIsLoaded();

  KeptWork work_{[this] { return files.CardsOnDisk(); }};
  FakeMachine fakes_;
  ToldBoxes boxes_{story, work_};
  PrintModuleSource printing_{FromUtf8(TESSARA_TEST_MODULES)};
  LazyPrintSurface printer_{printing_};
  ToldDialogs dialogs_{printing_, story};
  PosixFileSystem fileSystem_;
  PosixSafetyCopies copies_{files.Copies()};
  UserDesktop desktop_;
  RecordingSpreadsheet spreadsheet_;
  Machine machine_ = {boxes_,
                      dialogs_,
                      fakes_.settings,
                      fileSystem_,
                      copies_,
                      fakes_.clock,
                      desktop_,
                      fakes_.documentTypes,
                      spreadsheet_,
                      printer_,
                      CodePage::Western(),
                      FromUtf8(files.Folder().Path().string())};

 public:
  Program program{machine_};

 private:
  QtRenderer renderer_{program.Windows(), TESSARA_TEST_PICTURES};
};

}  // namespace tessara::test
