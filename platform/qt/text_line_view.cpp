#include "platform/qt/text_line_view.h"

#include <limits>

#include "platform/qt/text_mapping.h"

namespace tessara {

TextLineView::TextLineView(TextBox& box, QWidget& parent, const ViewContext& context)
    : ControlView(box, *new QLineEdit(&parent), context) {
  Edit().setMaxLength(std::numeric_limits<int>::max());
  QObject::connect(&Edit(), &QLineEdit::textEdited, this, [this] { PassEdit(); });
}

void TextLineView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kText) ShowText();
  if (aspect == Aspect::kEnabled) Edit().setReadOnly(As<TextBox>().Locked());
}

void TextLineView::PassEdit() {
  if (Detached() || correcting_) return;
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

/// By an edit of its own, so that the user can still undo.
void TextLineView::CorrectTo(const QString& wanted) {
  const qsizetype behindCursor = Edit().text().size() - Edit().cursorPosition();
  const ShownEdit edit = ChangeBetween(Edit().text(), wanted, wanted.size() - behindCursor);
  correcting_ = true;
  Edit().setSelection(static_cast<int>(edit.place), static_cast<int>(edit.removed));
  Edit().insert(edit.inserted);
  correcting_ = false;
}

}  // namespace tessara
