#pragma once

#include "forms/form.h"
#include "platform/dialogs.h"

namespace tessara {

/// Never on screen: holds the file dialog for as long as it is asked.
class frmSaveBox : public Form {
 public:
  explicit frmSaveBox(WindowSystem& system)
      : Form(system, "frmSaveBox", FormKind::kOffScreen, u"") {}

  FileDialogRequest CommonDialog1;
};

}  // namespace tessara
