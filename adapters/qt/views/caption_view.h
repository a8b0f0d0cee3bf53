#pragma once

#include <QAbstractButton>
#include <QStyle>

#include "adapters/qt/look/caption_fit.h"
#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/views/behind_box.h"
#include "adapters/qt/views/captioned_widget.h"
#include "adapters/qt/views/control_view.h"

namespace tessara {

/// Shows the caption of a button of any kind, and takes its clicks.
template <class ButtonWidget>
class CaptionView : public ControlView {
 public:
  /// `room` is the part of the widget that the caption has, but for `freeSide` twips at either
  /// side.
  CaptionView(CaptionedControl& control, QWidget& parent, const ViewContext& context,
              QStyle::SubElement room, int freeSide = 0)
      : ControlView(control, *new CaptionedWidget<ButtonWidget>(&parent), context),
        room_(room),
        freeSide_(freeSide) {
    QObject::connect(&Shown(), &QAbstractButton::clicked, this, [this] { TakeClick(); });
  }

 protected:
  virtual void Press() = 0;

  [[nodiscard]] CaptionedWidget<ButtonWidget>& Shown() const {
    return static_cast<CaptionedWidget<ButtonWidget>&>(Widget());
  }

  void FollowOwn(Aspect aspect) override {
    if (aspect == Aspect::kCaption) Shown().setText(ToQString(As<CaptionedControl>().Caption()));
    if (aspect == Aspect::kCaption || aspect == Aspect::kBounds) FollowFont();
  }

  void FollowFont() override { PrepareWhenSeen(); }

  void Prepare() override {
    const QFont font = Context().scale.ControlFont(As<CaptionedControl>().FontOf());
    Shown().Show(
        Context().captions.Fit(Shown().text(), font, CaptionRoom(), CaptionPlace::kInMiddle));
  }

  [[nodiscard]] QSizeF CaptionRoom() const {
    QStyleOptionButton option;
    option.initFrom(&Shown());
    const QSize whole = Shown().style()->subElementRect(room_, &option, &Shown()).size();
    const PixelScale& scale = Context().scale;
    const int covered = scale.FromTwips(CoveredWidth(As<CaptionedControl>()));
    return whole - QSize(covered + 2 * scale.FromTwips(freeSide_), 0);
  }

 private:
  void TakeClick() {
    if (Detached()) return;
    if (!BehindBox(Shown())) return Press();
    // The widget has turned its mark over already.
    FollowAll();
  }

  QStyle::SubElement room_;
  int freeSide_;
};

}  // namespace tessara
