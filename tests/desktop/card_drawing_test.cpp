#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <doctest/doctest.h>

#include "adapters/qt/look/rounded_edges.h"
#include "adapters/qt/text/text_layout.h"
#include "base/utf8.h"

using namespace tessara;

namespace {

constexpr QSize kPicture(300, 200);

template <class Draw>
QImage Drawn(double factor, const Draw& draw) {
  QImage picture(kPicture, QImage::Format_RGB32);
  picture.fill(QColor(10, 120, 90));
  QPainter painter(&picture);
  painter.translate(7, 3);
  painter.scale(factor, factor);
  draw(painter);
  return picture;
}

QImage WithKeptEdges(double factor, const RoundedEdges::Shape& shape, RoundedEdges& edges) {
  return Drawn(factor, [&](QPainter& painter) { edges.Paint(painter, shape); });
}

QImage AtOnce(double factor, const RoundedEdges::Shape& shape) {
  return Drawn(factor, [&](QPainter& painter) {
    constexpr double kHalf = 0.5;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(shape.border);
    painter.setBrush(shape.fill);
    painter.drawRoundedRect(shape.rect.adjusted(kHalf, kHalf, -kHalf, -kHalf), shape.radius,
                            shape.radius);
  });
}

/// The most by which a part of a colour differs.
int Difference(const QImage& one, const QImage& other) {
  int most = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                       std::abs(a.blue() - b.blue())});
    }
  }
  return most;
}

}  // namespace

TEST_CASE("A rounded rectangle with kept edges looks as one that is drawn at once, at any factor") {
  const RoundedEdges::Shape white{{0, 0, 120, 70}, 7, QColor(252, 250, 244), QColor(207, 199, 180)};
  const RoundedEdges::Shape yellow{{5, 2, 90, 60}, 7, QColor(248, 234, 180), QColor(211, 189, 118)};
  RoundedEdges edges;
  for (const double factor : {1.0, 1.0, 1.25, 1.5, 2.0}) {
    CAPTURE(factor);
    for (const auto& shape : {white, white, yellow}) {
      // What is smoothed first, and then laid on the ground, is rounded twice.
      CHECK(Difference(WithKeptEdges(factor, shape, edges), AtOnce(factor, shape)) <= 2);
    }
  }
}

TEST_CASE("Kept edges leave the painter as it was") {
  RoundedEdges edges;
  Drawn(1.5, [&](QPainter& painter) {
    const QTransform before = painter.worldTransform();
    edges.Paint(painter, {{0, 0, 120, 70}, 7, Qt::white, Qt::black});
    CHECK(painter.worldTransform() == before);
  });
}

TEST_CASE("A line that ends inside a word is told from one that ends at a blank or a break") {
  TextStyle style;
  style.points = 20;
  style.wrap = true;
  struct Case {
    Text text;
    bool breaks;
  };
  for (const Case& tried :
       {Case{u"", false}, Case{u"short", false}, Case{u"words that stand on several lines", false},
        Case{u"a\r\n\r\nbreak", false}, Case{u"Donaudampfschifffahrtsgesellschaft", true},
        Case{u"Donaudampf-Schifffahrt", true}}) {
    CAPTURE(ToUtf8(tried.text));
    const LaidOutText laidOut(tried.text, 200, style);
    CHECK(laidOut.BreaksWords() == tried.breaks);
  }
}
