#pragma once

#include <QApplication>
#include <QCursor>
#include <optional>

namespace tessara {

/// For its life, while a dialog is open, the pointer is the ordinary one of whatever it is over.
/// The wait pointer, where it was up, comes back behind that.
class PlainPointer {
 public:
  PlainPointer() {
    const QCursor* shown = QApplication::overrideCursor();
    if (shown == nullptr) return;
    before_ = *shown;
    QApplication::restoreOverrideCursor();
  }
  PlainPointer(const PlainPointer&) = delete;
  PlainPointer& operator=(const PlainPointer&) = delete;
  ~PlainPointer() {
    if (before_) QApplication::setOverrideCursor(*before_);
  }

 private:
  std::optional<QCursor> before_;
};

}  // namespace tessara
