#include "base/run_time_error.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tessara {

namespace {

constexpr std::pair<ErrorNumber, TextView> kDescriptions[] = {
    {ErrorNumber::kInvalidProcedureCall, u"Invalid procedure call or argument"},
    {ErrorNumber::kOverflow, u"Overflow"},
    {ErrorNumber::kOutOfMemory, u"Out of memory"},
    {ErrorNumber::kSubscriptOutOfRange, u"Subscript out of range"},
    {ErrorNumber::kTypeMismatch, u"Type mismatch"},
    {ErrorNumber::kInternalError, u"Internal error"},
    {ErrorNumber::kBadFileNumber, u"Bad file name or number"},
    {ErrorNumber::kFileNotFound, u"File not found"},
    {ErrorNumber::kBadFileMode, u"Bad file mode"},
    {ErrorNumber::kFileAlreadyOpen, u"File already open"},
    {ErrorNumber::kDeviceIo, u"Device I/O error"},
    {ErrorNumber::kDiskFull, u"Disk full"},
    {ErrorNumber::kInputPastEnd, u"Input past end of file"},
    {ErrorNumber::kTooManyFiles, u"Too many files"},
    {ErrorNumber::kPermissionDenied, u"Permission denied"},
    {ErrorNumber::kDiskNotReady, u"Disk not ready"},
    {ErrorNumber::kPathFileAccess, u"Path/File access error"},
    {ErrorNumber::kPathNotFound, u"Path not found"},
    {ErrorNumber::kObjectNotSet, u"Object variable or With block variable not set"},
    {ErrorNumber::kControlArrayElement, u"Control array element doesn't exist"},
    {ErrorNumber::kInvalidPropertyValue, u"Invalid property value"},
    {ErrorNumber::kMinimisedOrMaximised,
     u"A form can't be moved or sized while minimized or maximized"},
    {ErrorNumber::kObjectRequired, u"Object required"},
    {ErrorNumber::kAutomationClassNotFound,
     u"File name or class name not found during Automation operation"},
    {ErrorNumber::kAutomationError, u"Automation error"},
    {ErrorNumber::kPrinterError, u"Printer error"},
    {ErrorNumber::kDialogCancelled, u"Cancel was selected."},
    {ErrorNumber::kImageListIndex, u"Index out of bounds"},
    {ErrorNumber::kImageListKey, u"Element not found"},
};

}  // namespace

RunTimeError::RunTimeError(ErrorNumber number) : number_(number) {}

Text RunTimeError::Description() const {
  const auto* const found =
      std::find_if(std::begin(kDescriptions), std::end(kDescriptions),
                   [this](const auto& entry) { return entry.first == number_; });
  return found == std::end(kDescriptions) ? Text() : Text(found->second);
}

const char* RunTimeError::what() const noexcept {
  return "run-time error";
}

}  // namespace tessara
