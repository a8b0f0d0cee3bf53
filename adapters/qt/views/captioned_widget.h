#pragma once

#include <QPainter>
#include <QStyleOptionButton>

#include "adapters/qt/look/caption_fit.h"
#include "adapters/qt/look/visible_focus.h"

namespace tessara {

/// A button of any kind whose caption is fitted to its size. The form decides what a click changes:
/// by itself the widget never turns its mark over.
template <class ButtonWidget>
class CaptionedWidget : public ButtonWidget {
 public:
  using ButtonWidget::ButtonWidget;

  void Show(const FittedCaption& fitted) {
    shown_ = fitted.text;
    if (this->font() != fitted.font) this->setFont(fitted.font);
    this->update();
  }

 protected:
  void initStyleOption(QStyleOptionButton* option) const override {
    ButtonWidget::initStyleOption(option);
    option->text = shown_;
    ShowFocusAlways(*option);
  }
  void nextCheckState() override {}
  /// All of the place takes the click, not only mark and letters.
  [[nodiscard]] bool hitButton(const QPoint& place) const override {
    return this->rect().contains(place);
  }

 private:
  QString shown_;
};

}  // namespace tessara
