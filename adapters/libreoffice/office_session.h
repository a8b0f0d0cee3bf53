#pragma once

#include <atomic>
#include <com/sun/star/frame/XComponentLoader.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/uno/Exception.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <filesystem>
#include <string>

#include "adapters/libreoffice/office_process.h"
#include "adapters/libreoffice/watchdog.h"
#include "base/run_time_error.h"

namespace tessara {

/// A running server and the connection to it. It ends with the last workbook that holds it.
class OfficeSession {
 public:
  using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;
  using Component = com::sun::star::uno::Reference<com::sun::star::lang::XComponent>;

  /// `local` is this process's own side of the connection.
  OfficeSession(std::string officeProgramFolder, const Context& local);

  /// Asks the server something. What it refuses, and what it does not answer in time, raises
  /// error 440.
  template <class Question>
  auto Ask(Question question) {
    const Watchdog::Wait wait(watchdog_);
    try {
      return question();
    } catch (const com::sun::star::lang::DisposedException&) {
      lost_ = true;
      throw RunTimeError(ErrorNumber::kAutomationError);
    } catch (const com::sun::star::uno::Exception&) {
      throw RunTimeError(ErrorNumber::kAutomationError);
    }
  }

  /// True where the server has ended, or is about to: nothing more can be asked of it.
  [[nodiscard]] bool Lost() { return lost_ || !process_.Running(); }
  /// Ends the server at once, also one that is asked something. May be called by any thread.
  void End() { process_.Kill(); }
  /// Opens a file as a new, hidden document; starts the server at its first use. Within Ask.
  Component Open(const std::string& path);
  [[nodiscard]] const std::filesystem::path& Folder() const { return process_.Folder().Path(); }

 private:
  using Loader = com::sun::star::uno::Reference<com::sun::star::frame::XComponentLoader>;

  Loader Connect();
  Context WaitForPipe();

  OfficeProcess process_;
  Watchdog watchdog_;
  Context local_;
  Loader desktop_;
  std::atomic<bool> lost_ = false;
};

}  // namespace tessara
