#pragma once

#include <exception>

#include "base/text.h"

namespace tessara {

/// The numbers of the run-time errors that the program raises or tells apart.
enum class ErrorNumber : int {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kInternalError = 51,
  kBadFileNumber = 52,
  kFileNotFound = 53,
  kBadFileMode = 54,
  kFileAlreadyOpen = 55,
  kDeviceIo = 57,
  kDiskFull = 61,
  kInputPastEnd = 62,
  kTooManyFiles = 67,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kControlArrayElement = 340,
  kInvalidPropertyValue = 380,
  kMinimisedOrMaximised = 384,
  kObjectRequired = 424,
  kAutomationClassNotFound = 432,
  kAutomationError = 440,
  kPrinterError = 482,
  kDialogCancelled = 32755,
  kImageListIndex = 35600,
  kImageListKey = 35601,
};

/// A run-time error: its number and its description ("Subscript out of range").
/// Where no routine catches it, the guard round events shows it and ends the program.
class RunTimeError : public std::exception {
 public:
  explicit RunTimeError(ErrorNumber number);

  [[nodiscard]] ErrorNumber Number() const { return number_; }
  [[nodiscard]] Text Description() const;
  [[nodiscard]] const char* what() const noexcept override;

 private:
  ErrorNumber number_;
};

/// Ends the program after an error report. Deliberately no RunTimeError, so that no routine
/// that handles errors by number can swallow it.
class ProgramEnded : public std::exception {
 public:
  explicit ProgramEnded(int exitStatus) : exitStatus_(exitStatus) {}
  [[nodiscard]] int ExitStatus() const { return exitStatus_; }
  [[nodiscard]] const char* what() const noexcept override { return "program ended"; }

 private:
  int exitStatus_;
};

}  // namespace tessara
