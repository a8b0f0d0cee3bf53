#pragma once

#include "deck/app_context.h"
#include "forms/controls/controls.h"
#include "forms/form.h"

namespace tessara {

/// The About box: a window of its own in front of the frame, closed by its button, a click, the
/// loss of the focus, or its link.
class AboutBox : public Form {
 public:
  explicit AboutBox(AppContext& app);

  ControlArray<Line, 4> outerRule{"Line2"};
  ControlArray<Line, 4> innerRule{"Line3"};
  Label title{"Label1(0)"};
  Label credit{"Label1(1)"};
  Label mailLink{"Label2"};
  Image envelope{"Image1"};
  Button ok{"cmdOK"};

  void PointToLink();
  void WriteMail();

 protected:
  void OnLoad() override;
  void OnClick() override { Unload(); }
  void OnLostFocus() override { Unload(); }
  void OnMouseMove() override;

 private:
  AppContext& app_;
};

}  // namespace tessara
