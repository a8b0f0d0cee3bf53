#pragma once

#include <QPainter>

#include "adapters/qt/look/rounded_edges.h"
#include "adapters/qt/text/text_measures.h"
#include "forms/canvas.h"

namespace tessara {

/// What is kept from one paint to the next.
struct CanvasMemory {
  TextMeasures texts;
  RoundedEdges edges;
};

/// A canvas on a painter that counts in pixels of the program. Without a painter it measures.
class QtCanvas : public Canvas {
 public:
  QtCanvas(CanvasMemory& memory, QPainter* painter);

  void FillRect(const Rect& rect, const Color& color) override;
  void FillRoundedRect(const Rect& rect, double radius, const Color& fill,
                       const Color& border) override;
  void DrawLine(Point from, Point to, double width, const Color& color) override;
  void Clip(const Rect& rect) override;
  void Unclip() override;
  void DrawText(const Rect& rect, const Text& text, const TextStyle& style) override;
  [[nodiscard]] double TextHeight(const Text& text, double width, const TextStyle& style) override;
  [[nodiscard]] bool BreaksWords(const Text& text, double width, const TextStyle& style) override;
  [[nodiscard]] double TextWidth(const Text& text, const TextStyle& style) override;
  [[nodiscard]] double LineHeight(const TextStyle& style) override;
  [[nodiscard]] double Ascent(const TextStyle& style) override;

 private:
  [[nodiscard]] QRectF OnDevicePixels(const QRectF& rect) const;

  CanvasMemory& memory_;
  QPainter* painter_;
};

}  // namespace tessara
