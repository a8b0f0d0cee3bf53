#pragma once

#include <QLabel>

namespace tessara {

/// A picture at its top left corner.
class PictureWidget : public QLabel {
 public:
  using QLabel::QLabel;

  /// `size` is the picture's own, in the desktop's pixels.
  void Show(const QPixmap& picture, QSize size);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize size_;
};

}  // namespace tessara
