#include "adapters/qt/windows/backdrop_area.h"

#include <QMouseEvent>

#include "adapters/qt/look/picture_cache.h"

namespace tessara {

BackdropArea::BackdropArea(Form& frame, const ViewContext& context)
    : frame_(&frame), context_(context) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setFrameShape(QFrame::NoFrame);
}

bool BackdropArea::viewportEvent(QEvent* event) {
  const bool released = event->type() == QEvent::MouseButtonRelease;
  const bool handled = QMdiArea::viewportEvent(event);
  if (!released || frame_ == nullptr) return handled;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const bool background = viewport()->childAt(mouse.position().toPoint()) == nullptr;
  if (background && mouse.button() == Qt::LeftButton) frame_->UserClick();
  return handled;
}

void BackdropArea::paintEvent(QPaintEvent* event) {
  QMdiArea::paintEvent(event);
  if (frame_ == nullptr) return;
  QPainter painter(viewport());
  PaintPictures(painter, frame_->Painted(), event->region(), context_.scale, context_.pictures);
}

}  // namespace tessara
