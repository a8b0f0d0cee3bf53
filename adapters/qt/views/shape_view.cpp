#include "adapters/qt/views/shape_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "adapters/qt/look/contrast.h"
#include "adapters/qt/look/control_palette.h"

namespace tessara {

namespace {

/// A filled rectangle that is nothing to the mouse.
class FilledWidget : public QWidget {
 public:
  explicit FilledWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  void Fill(const QColor& color) {
    color_ = color;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override { QPainter(this).fillRect(event->rect(), color_); }

 private:
  QColor color_;
};

/// `own` is the colour where the control has none.
void Fill(QWidget& widget, const Color& color, const QColor& own) {
  static_cast<FilledWidget&>(widget).Fill(ColorIn(widget.palette(), color, own));
}

/// A line tells what belongs together: it is seen on every ground.
QColor LineColor(const QPalette& palette) {
  return ReadableOn(palette.color(QPalette::Window), palette.color(QPalette::Mid),
                    kVisibleContrast);
}

}  // namespace

ShapeView::ShapeView(Shape& shape, QWidget& parent, const ViewContext& context)
    : ControlView(shape, *new FilledWidget(&parent), context) {}

void ShapeView::FollowOwn(Aspect aspect) {
  if (aspect != Aspect::kColor) return;
  Fill(Widget(), As<Shape>().BackColor(), Widget().palette().color(QPalette::Mid));
}

LineView::LineView(Line& line, QWidget& parent, const ViewContext& context)
    : ControlView(line, *new FilledWidget(&parent), context) {}

void LineView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kColor) {
    Fill(Widget(), As<Line>().ForeColor(), LineColor(Widget().palette()));
  }
  if (aspect != Aspect::kBounds) return;
  // A line without a thickness of its own still shows.
  const QRect place = Widget().geometry();
  Widget().resize(std::max(1, place.width()), std::max(1, place.height()));
}

}  // namespace tessara
