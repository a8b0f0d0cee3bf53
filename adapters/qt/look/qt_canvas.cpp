#include "adapters/qt/look/qt_canvas.h"

#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

#include "adapters/qt/look/control_palette.h"
#include "adapters/qt/text/text_layout.h"

namespace tessara {

namespace {

QRectF ForQt(const Rect& rect) {
  return {rect.left, rect.top, rect.width, rect.height};
}

QColor ForQt(const Color& color) {
  const QPalette palette = QApplication::palette();
  return ColorIn(palette, color, palette.color(QPalette::Text));
}

}  // namespace

QtCanvas::QtCanvas(CanvasMemory& memory, QPainter* painter) : memory_(memory), painter_(painter) {
  if (painter_ != nullptr) painter_->setRenderHint(QPainter::Antialiasing);
}

void QtCanvas::FillRect(const Rect& rect, const Color& color) {
  painter_->fillRect(ForQt(rect), ForQt(color));
}

void QtCanvas::FillRoundedRect(const Rect& rect, double radius, const Color& fill,
                               const Color& border) {
  memory_.edges.Paint(*painter_, {ForQt(rect), radius, ForQt(fill), ForQt(border)});
}

void QtCanvas::DrawLine(Point from, Point to, double width, const Color& color) {
  const bool upright = from.x == to.x;
  if (!upright && from.y != to.y) {
    painter_->setPen(QPen(ForQt(color), width));
    painter_->drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
    return;
  }
  const double half = width / 2;
  const QPointF out = upright ? QPointF(half, 0) : QPointF(0, half);
  const QRectF stroke = QRectF(QPointF(from.x, from.y) - out, QPointF(to.x, to.y) + out);
  painter_->fillRect(OnDevicePixels(stroke.normalized()), ForQt(color));
}

/// A straight line is sharp when its edges are those of the screen's pixels.
QRectF QtCanvas::OnDevicePixels(const QRectF& rect) const {
  const QTransform toDevice = painter_->deviceTransform();
  const QRectF device = toDevice.mapRect(rect);
  const QPointF topLeft(std::round(device.left()), std::round(device.top()));
  const QSizeF size(std::max(1.0, std::round(device.width())),
                    std::max(1.0, std::round(device.height())));
  return toDevice.inverted().mapRect(QRectF(topLeft, size));
}

void QtCanvas::Clip(const Rect& rect) {
  painter_->save();
  painter_->setClipRect(ForQt(rect), Qt::IntersectClip);
}

void QtCanvas::Unclip() {
  painter_->restore();
}

void QtCanvas::DrawText(const Rect& rect, const Text& text, const TextStyle& style) {
  if (text.empty()) return;
  Clip(rect);
  painter_->setPen(ForQt(style.color));
  memory_.texts.LaidOut(text, rect.width, style).Draw(*painter_, {rect.left, rect.top});
  Unclip();
}

double QtCanvas::TextHeight(const Text& text, double width, const TextStyle& style) {
  return memory_.texts.HeightOf(text, width, style);
}

bool QtCanvas::BreaksWords(const Text& text, double width, const TextStyle& style) {
  return memory_.texts.BreaksWords(text, width, style);
}

double QtCanvas::TextWidth(const Text& text, const TextStyle& style) {
  return memory_.texts.WidthOf(text, style);
}

double QtCanvas::LineHeight(const TextStyle& style) {
  return LaidOutText::LineHeight(style);
}

double QtCanvas::Ascent(const TextStyle& style) {
  return LaidOutText::Ascent(style);
}

}  // namespace tessara
