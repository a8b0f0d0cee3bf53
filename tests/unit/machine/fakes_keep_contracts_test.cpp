#include <doctest/doctest.h>
#include <utility>

#include "tests/support/contracts/dialogs_contract.h"
#include "tests/support/contracts/print_queue_contract.h"
#include "tests/support/contracts/print_surface_contract.h"
#include "tests/support/contracts/settings_contract.h"
#include "tests/support/contracts/spreadsheet_contract.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/recording_print_surface.h"
#include "tests/support/fakes/recording_spreadsheet.h"

namespace tessara::test {

TEST_CASE("the settings of the tests keep to what the real ones do") {
  FakeSettings settings;
  CheckSettingsContract(settings);
}

TEST_CASE("the print surface of the tests keeps to what the real one does") {
  RecordingPrintSurface surface;
  CheckPrintSurfaceContract(surface);
}

TEST_CASE("the print queues of the tests keep to what the real ones do") {
  RecordingPrintSurface surface;
  surface.noQueues = {u"no such queue"};
  CheckPrintQueueContract(surface, u"cards",
                          [&](int /*jobs*/) { return std::exchange(surface.jobs, {}); });
}

TEST_CASE("the dialogs of the tests keep to what the real ones do") {
  FakeDialogs dialogs;
  const DialogUser user{[&](const Text& path) { dialogs.files.push_back(path); },
                        [&](const auto& text) { dialogs.texts.push_back(text); }};
  CheckFileDialogContract(dialogs, user, u"/decks");
  CheckTextDialogContract(dialogs, user);
  CheckPrinterDialogContract(
      dialogs, [&](const auto& choice) { dialogs.printers.push_back(choice); }, u"cards",
      u"/home/ann/cards.pdf");
}

TEST_CASE("the spreadsheet server of the tests keeps to what the real one does") {
  RecordingSpreadsheet server;
  CheckSpreadsheetContract(server, u"/opt/tessara/Notelet.xlt");
}

}  // namespace tessara::test
