#pragma once

#include <vector>

#include "forms/control.h"

namespace tessara {

/// A push button. All ways to press it end in Press.
class Button : public CaptionedControl {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kButton; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  /// What Return presses where no other button has the focus, and what Escape presses.
  [[nodiscard]] bool IsDefault() const { return isDefault_; }
  [[nodiscard]] bool IsCancel() const { return isCancel_; }
  void SetDefaultAndCancel(bool on) { isDefault_ = isCancel_ = on; }

  /// Runs the click where the user can reach the button, else nothing.
  void Press();
  std::function<void()> onClick;

 private:
  bool isDefault_ = false;
  bool isCancel_ = false;
};

/// One choice of a group: the option buttons of one container.
class OptionButton : public CaptionedControl {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kOptionButton; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  [[nodiscard]] bool Selected() const { return selected_; }
  /// Selecting a button that was not clears the others of its group without an event and runs
  /// the click; clearing runs none.
  void SetSelected(bool selected);
  /// The user's click: selects; runs the click also where it was selected already.
  void Press();
  std::function<void()> onClick;

 private:
  bool selected_ = false;
};

class CheckBox : public CaptionedControl {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kCheckBox; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  /// 0 unticked, 1 ticked, 2 neither. Other values raise error 380.
  [[nodiscard]] int Value() const { return value_; }
  [[nodiscard]] bool Ticked() const { return value_ == 1; }
  /// A different value runs the click.
  void SetValue(int value);
  void SetTicked(bool ticked) { SetValue(ticked ? 1 : 0); }
  /// The user's click turns it over.
  void Press();
  std::function<void()> onClick;

 private:
  int value_ = 0;
};

/// A group box. Disabled, it keeps the user out of all that it holds, without greying it.
class Frame : public CaptionedControl {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kFrame; }
};

/// A picture that can hold controls.
class PictureBox : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kPictureBox; }
  [[nodiscard]] const Picture& PictureOf() const { return picture_; }
  void SetPicture(const Picture& picture);

 private:
  Picture picture_;
};

/// A picture alone.
class Image : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kImage; }
  [[nodiscard]] const Picture& PictureOf() const { return picture_; }
  /// The image takes the picture's size.
  void SetPicture(const Picture& picture);
  void UserClick();
  std::function<void()> onClick;

 private:
  Picture picture_;
};

class Label : public CaptionedControl {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kLabel; }
  [[nodiscard]] Alignment AlignmentOf() const { return alignment_; }
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }
  /// A link takes the focus, and Return is its click.
  [[nodiscard]] bool IsLink() const { return isLink_; }
  void SetLink(bool on) { isLink_ = on; }
  [[nodiscard]] bool TakesFocus() const override { return isLink_; }
  void UserClick();
  std::function<void()> onClick;

 private:
  Alignment alignment_ = Alignment::kLeft;
  bool isLink_ = false;
};

/// A filled rectangle.
class Shape : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kShape; }
};

/// A straight line along the longer side of its bounds.
class Line : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kLine; }
};

/// Text as the user's changes reach it: `removed` characters at `place` give way to `inserted`.
struct TextEdit {
  std::size_t place = 0;
  std::size_t removed = 0;
  Text inserted;
};

class TextBox : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kTextBox; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  [[nodiscard]] const Text& TextOf() const { return text_; }
  /// A different text runs the change event before this returns. No limit applies.
  void SetText(const Text& text);
  /// Most characters that the user can bring the text to; 0 for no limit. Text that is longer
  /// already is not cut.
  [[nodiscard]] int MaxLength() const { return maxLength_; }
  void SetMaxLength(int maxLength);
  [[nodiscard]] bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool multiLine) { multiLine_ = multiLine; }
  [[nodiscard]] bool VerticalScrollBar() const { return verticalScrollBar_; }
  void SetVerticalScrollBar(bool on) { verticalScrollBar_ = on; }
  [[nodiscard]] bool Locked() const { return locked_; }
  void SetLocked(bool locked);

  /// The number of display lines that the text takes, wrapped at the box's designed width.
  [[nodiscard]] int LineCount() const;

  /// What the user typed, pasted, cut or undid. Characters that the code page lacks become "?",
  /// line breaks CR LF (a single-line box takes what stands before the first one), and what goes
  /// over the limit is left out. Nothing happens where the box is locked or not reachable.
  void UserEdit(const TextEdit& edit);
  std::function<void()> onChange;

 private:
  Text text_;
  int maxLength_ = 0;
  bool multiLine_ = false;
  bool verticalScrollBar_ = false;
  bool locked_ = false;
};

/// A list to choose from, closed; its text can't be edited.
class ComboBox : public Control {
 public:
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kComboBox; }
  [[nodiscard]] bool TakesFocus() const override { return true; }
  void AddItem(const Text& item);
  void Clear();
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
  void CheckColumn(int column) const;

  std::vector<ListColumn> columns_;
  std::vector<ListItem> items_;
  int selected_ = 0;
};

}  // namespace tessara
