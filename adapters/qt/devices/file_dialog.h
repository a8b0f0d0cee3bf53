#pragma once

#include <QFileDialog>

#include "machine/dialogs.h"

namespace tessara {

/// A file dialog for one request: the desktop's own where it has one. An answer that the request
/// refuses is told and is none.
///
/// Without a Q_OBJECT: for a class of its own Qt would not use the desktop's dialog.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget* parent, const FileDialogRequest& request);

  /// Shows the dialog and waits. False where it is to be shown once more: the desktop's own closes
  /// with an answer, also with one that has been refused.
  bool Ask();
  /// The chosen path; empty on a cancel.
  [[nodiscard]] Text Answer() const;

 protected:
  void accept() override;
  void done(int result) override;

 private:
  void SetMode();
  void SetFilters();
  void NameParts();
  [[nodiscard]] bool IsOfDesktop() const;
  [[nodiscard]] Text Refusal() const;
  void TellRefusal();

  const FileDialogRequest& request_;
  Text refusal_;  ///< of the answer given last; empty once it has been told
};

}  // namespace tessara
