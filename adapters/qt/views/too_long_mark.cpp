#include "adapters/qt/views/too_long_mark.h"

#include <QEvent>
#include <QPainter>

#include "adapters/qt/look/contrast.h"

namespace tessara {

namespace {

QString TextOf(std::size_t characters) {
  if (characters == 0) return {};
  if (characters == 1) return QStringLiteral("1 character too long: a save cuts it off.");
  return QStringLiteral("%1 characters too long: a save cuts them off.").arg(characters);
}

}  // namespace

TooLongMark::TooLongMark(QWidget& box) : QWidget(&box), box_(box) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  box.installEventFilter(this);
  hide();
}

void TooLongMark::Tell(std::size_t characters) {
  const QString text = TextOf(characters);
  if (text == box_.accessibleDescription()) return;
  box_.setToolTip(text);
  box_.setAccessibleDescription(text);
  setGeometry(box_.rect());
  setVisible(characters > 0);
  raise();
}

void TooLongMark::paintEvent(QPaintEvent* event) {
  (void)event;
  constexpr QColor kAmber(0xB0, 0x60, 0x00);
  constexpr double kWidth = 2;
  constexpr double kCorner = 2;
  constexpr double kInside = kWidth / 2;
  const QColor ground = box_.palette().color(QPalette::Base);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ReadableOn(ground, kAmber, kVisibleContrast), kWidth));
  painter.drawRoundedRect(QRectF(rect()).adjusted(kInside, kInside, -kInside, -kInside), kCorner,
                          kCorner);
}

bool TooLongMark::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &box_ && event->type() == QEvent::Resize) setGeometry(box_.rect());
  return false;
}

}  // namespace tessara
