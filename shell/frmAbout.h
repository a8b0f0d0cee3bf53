#pragma once

#include "deck/app_context.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace tessara {

/// The About box: a window of its own in front of the frame, closed by its button, a click, the
/// loss of the focus, or its link.
class frmAbout : public Form {
 public:
  explicit frmAbout(AppContext& app);

  ControlArray<Line, 4> Line2;
  ControlArray<Line, 4> Line3;
  ControlArray<Label, 2> Label1;
  Label Label2;
  Image Image1;
  Button cmdOK;

  void cmdOK_Click() { Unload(); }
  void Label2_MouseMove();
  void Label2_Click();

 protected:
  void Form_Load() override;
  void Form_Click() override { Unload(); }
  void Form_LostFocus() override { Unload(); }
  void Form_MouseMove() override;

 private:
  AppContext& app_;
};

}  // namespace tessara
