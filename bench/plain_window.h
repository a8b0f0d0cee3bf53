#pragma once

#include <QFont>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <functional>
#include <vector>

class QMdiArea;

/// The floor that the opening of a window is measured against: the same number and kinds of plain
/// widgets with the same texts, entries and pictures, in the same places.
class PlainWindow {
 public:
  /// Learns the window, which is on screen.
  explicit PlainWindow(const QWidget& original);
  /// Makes and shows the plain one, as a child of the frame or as a dialog, as the original was.
  [[nodiscard]] QWidget* Show() const;

 private:
  struct Part {
    std::function<QWidget*(QWidget*)> make;
    QRect place;
    QFont font;
    bool ownFont;
  };
  void Learn(const QWidget& content, const QWidget& widget);
  [[nodiscard]] QWidget* MakeContent(QWidget* parent, Qt::WindowFlags flags) const;

  QPointer<QMdiArea> area_;
  QWidget* frame_;
  QSize size_;
  std::vector<Part> parts_;
};

/// The floor that a card move is measured against: any key paints the picture anew.
class PlainCard : public QWidget {
 public:
  PlainCard(const QPixmap& picture, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent*) override { update(); }
  void paintEvent(QPaintEvent*) override;

 private:
  QPixmap picture_;
};
