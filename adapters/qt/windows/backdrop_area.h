#pragma once

#include <QMdiArea>

#include "adapters/qt/look/view_context.h"
#include "forms/form.h"

namespace tessara {

/// Where the child windows stand, with the frame's picture behind them.
class BackdropArea : public QMdiArea {
 public:
  BackdropArea(Form& frame, const ViewContext& context);
  void Detach() { frame_ = nullptr; }

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  Form* frame_;
  const ViewContext& context_;
};

}  // namespace tessara
