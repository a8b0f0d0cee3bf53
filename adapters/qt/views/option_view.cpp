#include "adapters/qt/views/option_view.h"

#include <QKeyEvent>
#include <algorithm>
#include <vector>

#include "forms/form.h"

namespace tessara {

namespace {

/// The options of the group that the user can reach, the option itself among them.
std::vector<OptionButton*> ReachableGroup(const OptionButton& option) {
  std::vector<OptionButton*> group;
  for (Control* control : option.Owner().Controls()) {
    const bool member = control->Kind() == ControlKind::kOptionButton &&
                        control->Container() == option.Container() && control->Reachable();
    if (member) group.push_back(static_cast<OptionButton*>(control));
  }
  return group;
}

int StepOf(int key) {
  if (key == Qt::Key_Down || key == Qt::Key_Right) return 1;
  return key == Qt::Key_Up || key == Qt::Key_Left ? -1 : 0;
}

/// Tab stops once in a group: at its selected option, where it has one.
void SetTabStops(const QWidget& container) {
  const auto group = container.findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  const bool oneSelected = std::any_of(group.begin(), group.end(), [](const QRadioButton* radio) {
    return radio->isChecked() && radio->isEnabled() && !radio->isHidden();
  });
  for (QRadioButton* radio : group) {
    radio->setFocusPolicy(oneSelected && !radio->isChecked() ? Qt::ClickFocus : Qt::StrongFocus);
  }
}

}  // namespace

void OptionWidget::ShowSelected(bool selected) {
  setAutoExclusive(false);
  setChecked(selected);
  setAutoExclusive(true);
}

void OptionWidget::focusInEvent(QFocusEvent* event) {
  setAutoExclusive(false);
  QRadioButton::focusInEvent(event);
  setAutoExclusive(true);
}

OptionView::OptionView(OptionButton& option, QWidget& parent, const ViewContext& context)
    : CaptionView(option, parent, context, QStyle::SE_RadioButtonContents) {}

void OptionView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kCaption || aspect == Aspect::kBounds) MakeRoomForCaption();
  CaptionView::FollowOwn(aspect);
  if (aspect == Aspect::kValue) Shown().ShowSelected(As<OptionButton>().Selected());
  const bool movesTabStop =
      aspect == Aspect::kValue || aspect == Aspect::kEnabled || aspect == Aspect::kVisible;
  if (movesTabStop) SetTabStops(*Shown().parentWidget());
}

/// An option no larger than its mark is widened, so that its caption is seen.
void OptionView::MakeRoomForCaption() {
  const OptionButton& control = As<OptionButton>();
  const QString caption = ToQString(control.Caption());
  const QFontMetrics metrics(Context().scale.ControlFont(control.FontOf()));
  const int room = CaptionRoom().toSize().width();
  if (!caption.isEmpty() && room < metrics.horizontalAdvance(caption.front())) {
    const int wanted = metrics.size(Qt::TextShowMnemonic, caption).width();
    Shown().resize(Shown().width() + wanted - room, Shown().height());
  }
}

bool OptionView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && !Detached()) {
    const int step = StepOf(static_cast<QKeyEvent*>(event)->key());
    if (step != 0) {
      GoToNeighbour(step);
      return true;
    }
  }
  return CaptionView::eventFilter(watched, event);
}

void OptionView::GoToNeighbour(int step) {
  const auto group = ReachableGroup(As<OptionButton>());
  const auto self = std::find(group.begin(), group.end(), &As<OptionButton>());
  if (self == group.end()) return;
  const auto count = static_cast<long>(group.size());
  OptionButton& next =
      *group[static_cast<std::size_t>((self - group.begin() + step + count) % count)];
  next.Owner().UserFocus(next);
  if (next.ArrowsSelect()) next.Press();
}

}  // namespace tessara
