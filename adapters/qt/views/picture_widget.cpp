#include "adapters/qt/views/picture_widget.h"

#include <QPainter>

namespace tessara {

void PictureWidget::Show(const QPixmap& picture, QSize size) {
  size_ = size;
  setPixmap(picture);
  update();
}

void PictureWidget::paintEvent(QPaintEvent* event) {
  (void)event;
  const QPixmap picture = pixmap(Qt::ReturnByValue);
  if (picture.isNull()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(QRect(QPoint(), size_), picture, picture.rect());
}

}  // namespace tessara
