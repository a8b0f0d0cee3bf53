#include "adapters/qt/views/boxes/list_items_view.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeWidget>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

Qt::CheckState TickOf(const ListItem& item) {
  return item.checked ? Qt::Checked : Qt::Unchecked;
}

QTreeWidgetItem* MakeItem(const ListItem& item) {
  QStringList texts(OneLineForQt(item.text));
  for (const Text& text : item.subItems) texts += OneLineForQt(text);
  auto* made = new QTreeWidgetItem(texts);
  // Each tick that changes in the list is told to all that look at it.
  made->setCheckState(0, TickOf(item));
  made->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren);
  return made;
}

}  // namespace

ListItemsView::ListItemsView(ListView& list, QWidget& parent, const ViewContext& context)
    : ControlView(list, *new QTreeWidget(&parent), context) {
  Shown().setRootIsDecorated(false);
  Shown().setUniformRowHeights(true);
  Shown().setAllColumnsShowFocus(true);
  Shown().setTextElideMode(Qt::ElideRight);
  Shown().viewport()->installEventFilter(this);
  QObject::connect(&Shown(), &QTreeWidget::currentItemChanged, this, [this] { PassSelection(); });
}

QTreeWidget& ListItemsView::Shown() const {
  return static_cast<QTreeWidget&>(Widget());
}

void ListItemsView::FollowOwn(Aspect aspect) {
  following_ = true;
  if (aspect == Aspect::kItems) {
    ShowColumns();
    ShowItems();
  }
  if (aspect == Aspect::kItems || aspect == Aspect::kContent) ShowTicks();
  if (aspect == Aspect::kItems || aspect == Aspect::kSelection) ShowSelection();
  following_ = false;
}

void ListItemsView::FollowDesktop() {
  ControlView::FollowDesktop();
  ShowColumns();
}

void ListItemsView::ShowColumns() {
  const auto& columns = As<ListView>().Columns();
  QStringList headings;
  for (const ListColumn& column : columns) headings += OneLineForQt(column.heading);
  Shown().setHeaderLabels(headings);
  for (int at = 0; at < headings.size(); ++at) {
    const int width = columns[static_cast<std::size_t>(at)].width;
    Shown().setColumnWidth(at, Context().scale.FromTwips(width));
  }
}

void ListItemsView::ShowItems() {
  const auto& list = As<ListView>();
  QList<QTreeWidgetItem*> added;
  for (int index = Shown().topLevelItemCount() + 1; index <= list.Count(); ++index) {
    added += MakeItem(list.Item(index));
  }
  Shown().addTopLevelItems(added);
}

void ListItemsView::ShowTicks() {
  for (int index = 1; index <= As<ListView>().Count(); ++index) {
    Shown().topLevelItem(index - 1)->setCheckState(0, TickOf(As<ListView>().Item(index)));
  }
}

void ListItemsView::ShowSelection() {
  const int selected = As<ListView>().SelectedIndex();
  Shown().setCurrentItem(selected == 0 ? nullptr : Shown().topLevelItem(selected - 1));
}

int ListItemsView::IndexOf(QTreeWidgetItem* item) const {
  return item == nullptr ? 0 : Shown().indexOfTopLevelItem(item) + 1;
}

void ListItemsView::PassSelection() {
  if (!Detached() && !following_) As<ListView>().UserSelectByKey(IndexOf(Shown().currentItem()));
}

bool ListItemsView::eventFilter(QObject* watched, QEvent* event) {
  if (Detached()) return false;
  if (watched == Shown().viewport()) {
    if (event->type() == QEvent::MouseButtonRelease) {
      PassClick(static_cast<const QMouseEvent&>(*event));
    }
    return false;
  }
  const bool space =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
  if (space) {
    As<ListView>().UserToggleByKey();
    return true;
  }
  return ControlView::eventFilter(watched, event);
}

void ListItemsView::PassClick(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  if (event.button() != Qt::LeftButton || !Shown().viewport()->rect().contains(place)) return;
  QTreeWidgetItem* item = Shown().itemAt(place);
  const bool onBox = item != nullptr && IsOnCheckBox(*item, place);
  As<ListView>().UserClick(IndexOf(item),
                           onBox ? ListView::HitPart::kCheckBox : ListView::HitPart::kText);
}

bool ListItemsView::IsOnCheckBox(QTreeWidgetItem& item, QPoint place) const {
  QStyleOptionViewItem option;
  option.initFrom(&Shown());
  option.rect = Shown().visualItemRect(&item);
  option.rect.setWidth(Shown().columnWidth(0));
  option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
  const QRect box =
      Shown().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &Shown());
  return box.contains(place);
}

}  // namespace tessara
