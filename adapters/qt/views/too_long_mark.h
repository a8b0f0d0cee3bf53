#pragma once

#include <QWidget>

namespace tessara {

/// Tells that a save would cut the text of a box: a quiet outline round the box, and how many
/// characters it is in the box's tool tip and accessible description. It belongs to the box.
class TooLongMark : public QWidget {
 public:
  explicit TooLongMark(QWidget& box);

  /// 0 takes the mark away.
  void Tell(std::size_t characters);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& box_;
};

}  // namespace tessara
