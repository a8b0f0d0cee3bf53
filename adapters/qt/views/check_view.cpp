#include "adapters/qt/views/check_view.h"

namespace tessara {

namespace {

Qt::CheckState StateOf(const CheckBox& check) {
  if (check.Value() == 0) return Qt::Unchecked;
  return check.Ticked() ? Qt::Checked : Qt::PartiallyChecked;
}

}  // namespace

CheckView::CheckView(CheckBox& check, QWidget& parent, const ViewContext& context)
    : CaptionView(check, parent, context, QStyle::SE_CheckBoxContents) {}

void CheckView::FollowOwn(Aspect aspect) {
  CaptionView::FollowOwn(aspect);
  if (aspect == Aspect::kValue) Shown().setCheckState(StateOf(As<CheckBox>()));
}

}  // namespace tessara
