#include "adapters/qt/look/icon_at_first_use.h"

#include <QIconEngine>
#include <QPainter>
#include <utility>

namespace tessara {

namespace {

class FirstUseEngine : public QIconEngine {
 public:
  explicit FirstUseEngine(std::function<QIcon()> make) : make_(std::move(make)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    Made().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  /// `size` counts device pixels.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Made().pixmap(size, 1.0, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Made().actualSize(size, mode, state);
  }
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
    return Made().availableSizes(mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new FirstUseEngine(*this); }

 private:
  const QIcon& Made() {
    if (make_) icon_ = std::exchange(make_, nullptr)();
    return icon_;
  }

  std::function<QIcon()> make_;
  QIcon icon_;
};

}  // namespace

QIcon IconAtFirstUse(std::function<QIcon()> make) {
  return QIcon(new FirstUseEngine(std::move(make)));
}

}  // namespace tessara
