#include "adapters/qt/windows/guarded_application.h"

#include <QMetaObject>

#include "base/run_time_error.h"

namespace tessara {

void GuardedApplication::SetWindows(WindowSystem& windows) {
  windows_ = &windows;
  ending_ = false;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const ProgramEnded&) {
    // On its way to the outermost event of the windows.
    throw;
  } catch (const std::exception&) {
    if (windows_ == nullptr) throw;
    EndSoon(std::current_exception());
    return true;
  }
}

void GuardedApplication::EndSoon(const std::exception_ptr& error) {
  // What can't be painted meets its error again with each painting, that of the report included.
  if (ending_) return;
  ending_ = true;
  const auto end = [this, error] {
    try {
      windows_->Run([&error] { std::rethrow_exception(error); });
    } catch (const ProgramEnded&) {
      // The loop that waits here ends, and its event is left then.
    }
  };
  QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
}

}  // namespace tessara
