#include "adapters/qt/views/boxes/text_line_view.h"

#include <algorithm>
#include <limits>

#include "adapters/qt/text/text_mapping.h"

namespace tessara {

TextLineView::TextLineView(TextBox& box, QWidget& parent, const ViewContext& context)
    : ControlView(box, *new CharacterLine(&parent), context), tooLong_(*new TooLongMark(Widget())) {
  Edit().setMaxLength(std::numeric_limits<int>::max());
  AddRedoKeys(Edit());
  QObject::connect(&Edit(), &QLineEdit::textEdited, this, [this] { PassEdit(); });
  Edit().onComposed = [this] { PassEdit(); };
}

void TextLineView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kText) {
    ShowText();
    tooLong_.Tell(As<TextBox>().CharactersCut());
  }
  if (aspect == Aspect::kEnabled) Edit().setReadOnly(As<TextBox>().Locked());
}

void TextLineView::PassEdit() {
  // What is being composed is no text yet, and what it replaces is not given up.
  if (Detached() || correcting_ || Edit().Composes()) return;
  auto& box = As<TextBox>();
  passing_ = true;
  box.UserEdit(UserChange(box.TextOf(), Edit().text(), Edit().cursorPosition(), false));
  if (!Detached()) ShowText();
  passing_ = false;
}

void TextLineView::ShowText() {
  const QString wanted = ShownText(As<TextBox>().TextOf(), false);
  if (wanted == Edit().text()) return;
  if (passing_) {
    CorrectTo(wanted);
  } else {
    Edit().setText(wanted);
    Edit().setCursorPosition(0);
  }
}

/// The user's edit is taken back, and what is right goes in instead of it: an undo then never
/// meets what was wrong.
void TextLineView::CorrectTo(const QString& wanted) {
  const qsizetype behindCursor = Edit().text().size() - Edit().cursorPosition();
  const qsizetype cursor = std::clamp<qsizetype>(wanted.size() - behindCursor, 0, wanted.size());
  correcting_ = true;
  Edit().undo();
  const ShownEdit edit = ChangeBetween(Edit().text(), wanted, cursor);
  Edit().setSelection(static_cast<int>(edit.place), static_cast<int>(edit.removed));
  Edit().insert(edit.inserted);
  Edit().setCursorPosition(static_cast<int>(cursor));
  correcting_ = false;
}

}  // namespace tessara
