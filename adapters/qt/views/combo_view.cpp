#include "adapters/qt/views/combo_view.h"

#include <QComboBox>
#include <QWheelEvent>

#include "adapters/qt/look/visible_focus.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

class ComboWidget : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override {
    QComboBox::initStyleOption(option);
    ShowFocusAlways(*option);
  }
  /// Choosing is for those who mean it: a list that is closed does not turn with the wheel.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace

ComboView::ComboView(ComboBox& combo, QWidget& parent, const ViewContext& context)
    : ControlView(combo, *new ComboWidget(&parent), context) {
  Shown().setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  QObject::connect(&Shown(), &QComboBox::activated, this,
                   [this](int index) { PassSelection(index); });
}

QComboBox& ComboView::Shown() const {
  return static_cast<QComboBox&>(Widget());
}

void ComboView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kItems) ShowItems();
  if (aspect == Aspect::kItems || aspect == Aspect::kSelection) {
    Shown().setCurrentIndex(As<ComboBox>().ListIndex());
  }
}

void ComboView::PassSelection(int index) {
  if (Detached()) return;
  As<ComboBox>().UserSelect(index);
  if (!Detached()) Shown().setCurrentIndex(As<ComboBox>().ListIndex());
}

void ComboView::ShowItems() {
  const auto& combo = As<ComboBox>();
  if (Shown().count() > combo.Count()) Shown().clear();
  for (int index = Shown().count(); index < combo.Count(); ++index) {
    Shown().addItem(OneLineForQt(combo.Item(index)));
  }
}

}  // namespace tessara
