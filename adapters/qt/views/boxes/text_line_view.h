#pragma once

#include "adapters/qt/views/control_view.h"
#include "adapters/qt/views/edit_widgets.h"
#include "adapters/qt/views/too_long_mark.h"
#include "forms/controls/controls.h"

namespace tessara {

/// Shows a text box of one line. The form's text is the truth: what the user changes goes there as
/// a change, and what the form makes of it comes back. The limit of length is the form's, so that a
/// lowered one does not cut what stands there.
class TextLineView : public ControlView {
 public:
  TextLineView(TextBox& box, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;

 private:
  [[nodiscard]] CharacterLine& Edit() const { return static_cast<CharacterLine&>(Widget()); }
  void PassEdit();
  void ShowText();
  void CorrectTo(const QString& wanted);

  TooLongMark& tooLong_;
  bool passing_ = false;
  bool correcting_ = false;
};

}  // namespace tessara
