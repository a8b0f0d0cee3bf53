#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

class QMouseEvent;
class QTreeWidget;
class QTreeWidgetItem;

namespace tessara {

/// Shows a list in report view with a check box for each item. The ticks are the form's to turn.
class ListItemsView : public ControlView {
 public:
  ListItemsView(ListView& list, QWidget& parent, const ViewContext& context);
  void FollowDesktop() override;

 protected:
  void FollowOwn(Aspect aspect) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QTreeWidget& Shown() const;
  [[nodiscard]] int IndexOf(QTreeWidgetItem* item) const;
  void ShowColumns();
  void ShowItems();
  void ShowTicks();
  void ShowSelection();
  void PassSelection();
  void PassClick(const QMouseEvent& event);
  [[nodiscard]] bool IsOnCheckBox(QTreeWidgetItem& item, QPoint place) const;

  bool following_ = false;
};

}  // namespace tessara
