#include "adapters/qt/windows/reading.h"

#include "adapters/qt/text/qt_text.h"
#include "forms/controls/controls.h"
#include "forms/controls/painted_control.h"

namespace tessara {

namespace {

Text ReadingOf(const Control& control) {
  if (!control.OnShow()) return {};
  if (control.Kind() == ControlKind::kPainted) {
    return static_cast<const PaintedControl&>(control).Description();
  }
  const Control* ground = control.Container();
  const bool onPicture = control.Kind() == ControlKind::kLabel && ground != nullptr &&
                         ground->Kind() == ControlKind::kPictureBox;
  return onPicture ? PlainCaption(static_cast<const Label&>(control).Caption()) : Text();
}

}  // namespace

QString ReadingOf(const Form& form) {
  QStringList parts;
  for (const Control* control : form.Controls()) {
    const Text part = ReadingOf(*control);
    if (!part.empty()) parts += LinesForQt(part);
  }
  return parts.join(QStringLiteral(". "));
}

}  // namespace tessara
