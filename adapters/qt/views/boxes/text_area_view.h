#pragma once

#include <QPlainTextEdit>

#include "adapters/qt/views/control_view.h"
#include "adapters/qt/views/too_long_mark.h"
#include "forms/controls/controls.h"

namespace tessara {

/// Shows a text box of several lines, by the rules of TextLineView. Its document holds the shown
/// text character by character; it is never read as plain text, which would rewrite some.
class TextAreaView : public ControlView {
 public:
  TextAreaView(TextBox& box, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;

 private:
  [[nodiscard]] QPlainTextEdit& Edit() const { return static_cast<QPlainTextEdit&>(Widget()); }
  [[nodiscard]] QString Shown() const;
  void PassEdit();
  void ShowText();
  void CorrectTo(const QString& wanted);

  TooLongMark& tooLong_;
  bool passing_ = false;
  bool following_ = false;
};

/// Display lines of the box's text, wrapped at the width that a TextAreaView of it has.
[[nodiscard]] int LineCountOf(const TextBox& box, const PixelScale& scale);

/// Width of the lines of a TextAreaView, in pixels.
[[nodiscard]] int LineWidthOf(const TextBox& box, const PixelScale& scale);

}  // namespace tessara
