#include "tests/support/contracts/spreadsheet_contract.h"

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "base/utf8.h"

namespace tessara::test {

TEST_CASE("the spreadsheet server keeps to what the print jobs count on") {
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  CheckSpreadsheetContract(server, FromUtf8(PROGRAM_FOLDER) + u"/Notelet.xlt");
}

}  // namespace tessara::test
