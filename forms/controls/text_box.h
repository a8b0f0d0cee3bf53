#pragma once

#include <cstddef>
#include <functional>
#include <set>

#include "forms/controls/control.h"

namespace tessara {

/// Text as the user's changes reach it: `removed` characters at `place` give way to `inserted`.
struct TextEdit {
  std::size_t place = 0;
  std::size_t removed = 0;
  Text inserted;
};

class TextBox : public Control {
 public:
  using Control::Control;
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

  /// What the user typed, pasted, cut or undid. Line breaks become CR LF (a single-line box takes
  /// what stands before the first one), and what goes over the limit is left out, in characters as
  /// a reader sees them; an undo brings back what stood there, however long. Nothing happens where
  /// the box is locked or not reachable.
  void UserEdit(const TextEdit& edit);
  std::function<void()> onChange;

  /// How many characters of a text, as a reader sees them, a save would cut. A box that has it is
  /// marked while there are some.
  std::function<std::size_t(const Text& text)> charactersCut;
  [[nodiscard]] std::size_t CharactersCut() const;

 private:
  void Take(const Text& text);
  [[nodiscard]] bool IsTooLong(const Text& text) const;
  [[nodiscard]] Text Edited(const TextEdit& edit) const;

  Text text_;
  std::set<Text> longTexts_;  ///< beyond the limit, that the user's edits have begun with
  int maxLength_ = 0;
  bool multiLine_ = false;
  bool verticalScrollBar_ = false;
  bool locked_ = false;
};

}  // namespace tessara
