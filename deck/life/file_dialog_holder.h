#pragma once

#include "forms/form.h"
#include "machine/dialogs.h"

namespace tessara {

/// Never on screen: holds the file dialog for as long as it is asked.
class FileDialogHolder : public Form {
 public:
  explicit FileDialogHolder(WindowSystem& system)
      : Form(system, "frmSaveBox", FormKind::kOffScreen, u"") {}

  FileDialogRequest dialog;
};

}  // namespace tessara
