#include "adapters/qt/views/boxes/combo_view.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QWheelEvent>

#include "adapters/qt/look/visible_focus.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

/// A key that would turn a closed list: it moves, or types the beginning of an entry.
bool Turns(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return !key.text().isEmpty() && key.text().front().isPrint();
  }
}

/// A key that closes an open list, and in Qt's own way chooses by that.
bool Closes(const QKeyEvent& key) {
  const bool arrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
  return key.key() == Qt::Key_F4 || (arrow && key.modifiers().testFlag(Qt::AltModifier));
}

/// Choosing is for those who mean it: by Return or a click in the open list.
class ComboWidget : public QComboBox {
 public:
  explicit ComboWidget(QWidget* parent) : QComboBox(parent) { view()->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool pressed = event->type() == QEvent::KeyPress;
    // Newer versions of Qt choose when the key is offered as a shortcut, before it is pressed.
    const bool offered = event->type() == QEvent::ShortcutOverride;
    const bool closes = (pressed || offered) && Closes(static_cast<QKeyEvent&>(*event));
    if (!closes) return QComboBox::eventFilter(watched, event);
    if (pressed) hidePopup();
    return true;
  }
  void initStyleOption(QStyleOptionComboBox* option) const override {
    QComboBox::initStyleOption(option);
    ShowFocusAlways(*option);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!Turns(*event)) return QComboBox::keyPressEvent(event);
    showPopup();
  }
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
