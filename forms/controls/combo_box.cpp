#include "forms/controls/combo_box.h"

#include "base/run_time_error.h"
#include "forms/assign.h"

namespace tessara {

void ComboBox::AddItem(const Text& item) {
  items_.push_back(item);
  Changed(Aspect::kItems);
}

const Text& ComboBox::Item(int index) const {
  if (index < 0 || index >= Count()) throw RunTimeError(ErrorNumber::kInvalidProcedureCall);
  return items_[static_cast<std::size_t>(index)];
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= Count()) throw RunTimeError(ErrorNumber::kInvalidPropertyValue);
  if (Assign(listIndex_, index)) Changed(Aspect::kSelection);
  Raise(onClick);
}

Text ComboBox::TextOf() const {
  return listIndex_ < 0 ? Text() : Item(listIndex_);
}

void ComboBox::UserSelect(int index) {
  if (TakesInput() && index >= 0 && index < Count()) SetListIndex(index);
}

}  // namespace tessara
