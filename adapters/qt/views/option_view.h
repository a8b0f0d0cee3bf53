#pragma once

#include <QRadioButton>

#include "adapters/qt/views/caption_view.h"
#include "forms/controls/controls.h"

namespace tessara {

/// A radio button that leaves its group to the form. A group of Qt's own can't be cleared, and has
/// Tab stops of its own; yet only a member of one is a radio button to a screen reader.
class OptionWidget : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;
  void ShowSelected(bool selected);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

/// Shows an option button. Which one of a group is selected is the form's business.
class OptionView : public CaptionView<OptionWidget> {
 public:
  OptionView(OptionButton& option, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<OptionButton>().Press(); }
  void FollowOwn(Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeRoomForCaption();
  void GoToNeighbour(int step);
};

}  // namespace tessara
