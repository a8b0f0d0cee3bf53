#include "forms/controls/list_view.h"

#include <utility>

#include "base/run_time_error.h"
#include "forms/assign.h"

namespace tessara {

void ListView::CheckColumn(int column) const {
  if (column < 1 || column > static_cast<int>(columns_.size())) {
    throw RunTimeError(ErrorNumber::kImageListIndex);
  }
}

void ListView::AddColumn(const Text& heading, int width) {
  columns_.push_back({heading, width});
  Changed(Aspect::kItems);
}

int ListView::ColumnWidth(int column) const {
  CheckColumn(column);
  return columns_[static_cast<std::size_t>(column - 1)].width;
}

void ListView::SetColumnWidth(int column, int width) {
  CheckColumn(column);
  columns_[static_cast<std::size_t>(column - 1)].width = width;
  Changed(Aspect::kItems);
}

void ListView::AddItem(const Text& text, std::vector<Text> subItems) {
  items_.push_back({text, std::move(subItems), false});
  if (selected_ == 0) selected_ = 1;
  Changed(Aspect::kItems);
}

const ListItem& ListView::Item(int index) const {
  if (!Has(index)) throw RunTimeError(ErrorNumber::kImageListIndex);
  return items_[static_cast<std::size_t>(index - 1)];
}

void ListView::SetChecked(int index, bool checked) {
  if (Item(index).checked == checked) return;
  items_[static_cast<std::size_t>(index - 1)].checked = checked;
  Changed(Aspect::kContent);
}

const ListItem& ListView::SelectedItem() const {
  if (selected_ == 0) throw RunTimeError(ErrorNumber::kObjectNotSet);
  return Item(selected_);
}

void ListView::Select(int index) {
  if (Assign(selected_, index)) Changed(Aspect::kSelection);
}

void ListView::UserClick(int index, HitPart part) {
  if (!TakesInput()) return;
  if (Has(index)) {
    if (part == HitPart::kCheckBox) SetChecked(index, !Item(index).checked);
    Select(index);
  }
  Raise(onClick);
}

void ListView::UserSelectByKey(int index) {
  if (TakesInput() && Has(index)) Select(index);
}

void ListView::UserToggleByKey() {
  if (TakesInput() && selected_ != 0) SetChecked(selected_, !SelectedItem().checked);
}

}  // namespace tessara
