#pragma once

#include <functional>
#include <vector>

#include "forms/controls/control.h"

namespace tessara {

/// A list to choose from, closed; its text can't be edited.
class ComboBox : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kComboBox; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  void AddItem(const Text& item);
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// Raises error 5 outside 0 to Count - 1.
  [[nodiscard]] const Text& Item(int index) const;
  /// -1 where nothing is selected.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// Selecting runs the click, also for the entry that is selected.
  void SetListIndex(int index);
  /// The selected entry, or empty text.
  [[nodiscard]] Text TextOf() const;
  void UserSelect(int index);
  std::function<void()> onClick;

 private:
  std::vector<Text> items_;
  int listIndex_ = -1;
};

}  // namespace tessara
