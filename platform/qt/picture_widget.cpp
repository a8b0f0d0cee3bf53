#include "platform/qt/picture_widget.h"

#include <QPainter>

namespace tessara {

void PictureWidget::Show(const QPixmap& picture, QSize size, bool stretched) {
  size_ = size;
  stretched_ = stretched;
  setPixmap(picture);
  update();
}

void PictureWidget::paintEvent(QPaintEvent* event) {
  (void)event;
  const QPixmap picture = pixmap(Qt::ReturnByValue);
  if (picture.isNull()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(QRect(QPoint(), stretched_ ? this->size() : size_), picture, picture.rect());
}

}  // namespace tessara
