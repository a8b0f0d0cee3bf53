#include "adapters/qt/views/make_view.h"

#include "adapters/qt/views/boxes/combo_view.h"
#include "adapters/qt/views/boxes/list_items_view.h"
#include "adapters/qt/views/boxes/text_area_view.h"
#include "adapters/qt/views/boxes/text_line_view.h"
#include "adapters/qt/views/button_view.h"
#include "adapters/qt/views/check_view.h"
#include "adapters/qt/views/group_view.h"
#include "adapters/qt/views/label_view.h"
#include "adapters/qt/views/option_view.h"
#include "adapters/qt/views/painted_view.h"
#include "adapters/qt/views/picture_view.h"
#include "adapters/qt/views/shape_view.h"

namespace tessara {

namespace {

/// Views belong to their widgets.
template <class View, class C>
ControlView* Make(Control& control, QWidget& parent, const ViewContext& context) {
  return new View(static_cast<C&>(control), parent, context);
}

ControlView* MakeTextView(Control& control, QWidget& parent, const ViewContext& context) {
  const bool multiLine = static_cast<TextBox&>(control).MultiLine();
  return multiLine ? Make<TextAreaView, TextBox>(control, parent, context)
                   : Make<TextLineView, TextBox>(control, parent, context);
}

ControlView* MakeByKind(Control& control, QWidget& parent, const ViewContext& context) {
  switch (control.Kind()) {
    case ControlKind::kButton:
      return Make<ButtonView, Button>(control, parent, context);
    case ControlKind::kOptionButton:
      return Make<OptionView, OptionButton>(control, parent, context);
    case ControlKind::kCheckBox:
      return Make<CheckView, CheckBox>(control, parent, context);
    case ControlKind::kFrame:
      return Make<GroupView, Frame>(control, parent, context);
    case ControlKind::kPictureBox:
      return Make<PictureBoxView, PictureBox>(control, parent, context);
    case ControlKind::kImage:
      return Make<ImageView, Image>(control, parent, context);
    case ControlKind::kLabel:
      return Make<LabelView, Label>(control, parent, context);
    case ControlKind::kShape:
      return Make<ShapeView, Shape>(control, parent, context);
    case ControlKind::kLine:
      return Make<LineView, Line>(control, parent, context);
    case ControlKind::kTextBox:
      return MakeTextView(control, parent, context);
    case ControlKind::kComboBox:
      return Make<ComboView, ComboBox>(control, parent, context);
    case ControlKind::kListView:
      return Make<ListItemsView, ListView>(control, parent, context);
    case ControlKind::kPainted:
      return Make<PaintedView, PaintedControl>(control, parent, context);
  }
  return nullptr;
}

}  // namespace

ControlView* MakeView(Control& control, QWidget& parent, const ViewContext& context) {
  ControlView* view = MakeByKind(control, parent, context);
  view->FollowAll();
  return view;
}

}  // namespace tessara
