#pragma once

#include <QRadioButton>

#include "forms/controls.h"
#include "platform/qt/caption_view.h"

namespace tessara {

/// Shows an option button. Which one of a group is selected is the form's business, so the widget's
/// own exclusion is off, and a selection can be cleared.
class OptionView : public CaptionView<QRadioButton> {
 public:
  OptionView(OptionButton& option, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<OptionButton>().Press(); }
  void FollowOwn(Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeRoomForCaption();
  void SelectNeighbour(int step);
};

}  // namespace tessara
