#include "adapters/qt/views/boxes/text_area_view.h"

#include <QApplication>
#include <QStyle>
#include <QTextBlock>
#include <QTextLayout>

#include "adapters/qt/text/text_layout.h"
#include "adapters/qt/text/text_mapping.h"
#include "adapters/qt/views/edit_widgets.h"

namespace tessara {

namespace {

/// What a QTextDocument leaves free at either side of its text.
constexpr int kDocumentMargin = 4;

int LinesOfParagraph(const QString& paragraph, const QTextOption& option, const QFont& font,
                     int width) {
  QTextLayout layout(paragraph, font);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
  }
  layout.endLayout();
  return layout.lineCount();
}

}  // namespace

TextAreaView::TextAreaView(TextBox& box, QWidget& parent, const ViewContext& context)
    : ControlView(box, *new PlainArea(&parent), context), tooLong_(*new TooLongMark(Widget())) {
  Edit().setTabChangesFocus(true);
  Edit().setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  Edit().setVerticalScrollBarPolicy(box.VerticalScrollBar() ? Qt::ScrollBarAlwaysOn
                                                            : Qt::ScrollBarAlwaysOff);
  Edit().document()->setDocumentMargin(kDocumentMargin);
  Edit().setWordWrapMode(WrapModeOf({}));
  AddRedoKeys(Edit());
  QObject::connect(&Edit(), &QPlainTextEdit::textChanged, this, [this] { PassEdit(); });
}

void TextAreaView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kText) {
    ShowText();
    tooLong_.Tell(As<TextBox>().CharactersCut());
  }
  if (aspect == Aspect::kEnabled) Edit().setReadOnly(As<TextBox>().Locked());
}

QString TextAreaView::Shown() const {
  QString shown;
  for (QTextBlock block = Edit().document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockNumber() > 0) shown += u'\n';
    shown += block.text();
  }
  return shown;
}

void TextAreaView::PassEdit() {
  if (Detached() || following_) return;
  auto& box = As<TextBox>();
  const QString shown = Shown();
  Edit().setWordWrapMode(WrapModeOf(shown));
  if (shown == ShownText(box.TextOf(), true)) return;
  passing_ = true;
  box.UserEdit(UserChange(box.TextOf(), shown, Edit().textCursor().position(), true));
  if (!Detached()) ShowText();
  passing_ = false;
}

void TextAreaView::ShowText() {
  const QString wanted = ShownText(As<TextBox>().TextOf(), true);
  if (wanted == Shown()) return;
  following_ = true;
  if (passing_) {
    CorrectTo(wanted);
  } else {
    // The quick breaks stand while either text is in the box.
    Edit().setWordWrapMode(QTextOption::WrapAnywhere);
    Edit().setPlainText(wanted);
    Edit().setWordWrapMode(WrapModeOf(wanted));
  }
  following_ = false;
}

/// As a part of the user's edit, so that one undo takes both back.
void TextAreaView::CorrectTo(const QString& wanted) {
  const QString shown = Shown();
  QTextCursor cursor = Edit().textCursor();
  const qsizetype behindCursor = shown.size() - cursor.position();
  const ShownEdit edit = ChangeBetween(shown, wanted, wanted.size() - behindCursor);
  cursor.joinPreviousEditBlock();
  cursor.setPosition(static_cast<int>(edit.place));
  cursor.setPosition(static_cast<int>(edit.place + edit.removed), QTextCursor::KeepAnchor);
  cursor.insertText(edit.inserted);
  cursor.endEditBlock();
}

int LineWidthOf(const TextBox& box, const PixelScale& scale) {
  const QStyle& style = *QApplication::style();
  const int frame = style.pixelMetric(QStyle::PM_DefaultFrameWidth);
  const int scrollBar = box.VerticalScrollBar() ? style.pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  return scale.FromTwips(box.BoundsOf()).width() - 2 * frame - scrollBar - 2 * kDocumentMargin;
}

int LineCountOf(const TextBox& box, const PixelScale& scale) {
  const QFont font = scale.ControlFont(box.FontOf());
  const int width = LineWidthOf(box, scale);
  const QString shown = ShownText(box.TextOf(), true);
  QTextOption option;
  option.setWrapMode(WrapModeOf(shown));
  int count = 0;
  for (const QString& paragraph : shown.split(u'\n')) {
    count += LinesOfParagraph(paragraph, option, font, width);
  }
  return count;
}

}  // namespace tessara
