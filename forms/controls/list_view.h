#pragma once

#include <functional>
#include <vector>

#include "forms/controls/control.h"

namespace tessara {

struct ListColumn {
  Text heading;
  int width = 0;  ///< twips
};

struct ListItem {
  Text text;
  std::vector<Text> subItems;  ///< texts of the second column and on
  bool checked = false;
};

/// A list in report view with a check box for each item. Items count from 1.
class ListView : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kListView; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  void AddColumn(const Text& heading, int width);
  [[nodiscard]] const std::vector<ListColumn>& Columns() const { return columns_; }
  /// Columns count from 1. Raises the list's index error (35600).
  [[nodiscard]] int ColumnWidth(int column) const;
  void SetColumnWidth(int column, int width);
  /// The first item added is the selected one, until another is selected.
  void AddItem(const Text& text, std::vector<Text> subItems);
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// Raises the list's index error (35600).
  [[nodiscard]] const ListItem& Item(int index) const;
  void SetChecked(int index, bool checked);
  /// 0 where there is none.
  [[nodiscard]] int SelectedIndex() const { return selected_; }
  /// Raises error 91 where there is none.
  [[nodiscard]] const ListItem& SelectedItem() const;

  /// The user's click on an item, on its check box or beside it. Item 0: the empty area.
  enum class HitPart { kText, kCheckBox };
  void UserClick(int index, HitPart part);
  /// The user's key: moves the selection, or with the space bar turns the selected item's tick.
  void UserSelectByKey(int index);
  void UserToggleByKey();
  std::function<void()> onClick;

 private:
  [[nodiscard]] bool Has(int index) const { return index >= 1 && index <= Count(); }
  void Select(int index);
  void CheckColumn(int column) const;

  std::vector<ListColumn> columns_;
  std::vector<ListItem> items_;
  int selected_ = 0;
};

}  // namespace tessara
