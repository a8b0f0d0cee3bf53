#include "bench/plain_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>

namespace {

using Make = std::function<QWidget*(QWidget*)>;

template <class W>
Make WithText(const QString& text) {
  return [text](QWidget* parent) {
    auto* widget = new W(parent);
    widget->setText(text);
    return widget;
  };
}

template <class W>
Make Empty() {
  return [](QWidget* parent) { return new W(parent); };
}

/// How to make a plain widget of the same kind; nothing for what only holds others or paints
/// itself.
Make MakerOf(const QWidget& widget) {
  if (auto* button = qobject_cast<const QPushButton*>(&widget))
    return WithText<QPushButton>(button->text());
  if (auto* option = qobject_cast<const QRadioButton*>(&widget))
    return WithText<QRadioButton>(option->text());
  if (auto* check = qobject_cast<const QCheckBox*>(&widget))
    return WithText<QCheckBox>(check->text());
  if (auto* tool = qobject_cast<const QToolButton*>(&widget))
    return WithText<QToolButton>(tool->text());
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return WithText<QLabel>(label->text());
  if (auto* line = qobject_cast<const QLineEdit*>(&widget))
    return WithText<QLineEdit>(line->text());
  if (auto* text = qobject_cast<const QTextEdit*>(&widget))
    return WithText<QTextEdit>(text->toHtml());
  if (widget.inherits("QPlainTextEdit")) return Empty<QPlainTextEdit>();
  if (widget.inherits("QComboBox")) return Empty<QComboBox>();
  if (widget.inherits("QTreeView")) return Empty<QTreeWidget>();
  if (widget.inherits("QListView")) return Empty<QListWidget>();
  return nullptr;
}

Make ContainerOf(const QWidget& widget) {
  if (auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    return [title = box->title()](QWidget* parent) { return new QGroupBox(title, parent); };
  }
  return Empty<QWidget>();
}

}  // namespace

PlainWindow::PlainWindow(const QWidget& original) : frame_(original.parentWidget()) {
  const auto* child = qobject_cast<const QMdiSubWindow*>(&original);
  if (child != nullptr) area_ = child->mdiArea();
  const QWidget& content = child == nullptr ? original : *child->widget();
  size_ = content.size();
  Learn(content, content);
}

void PlainWindow::Learn(const QWidget& content, const QWidget& widget) {
  for (const QObject* object : widget.children()) {
    const auto* part = qobject_cast<const QWidget*>(object);
    if (part == nullptr || part->isWindow() || !part->isVisible()) continue;
    const Make whole = MakerOf(*part);
    parts_.push_back({whole ? whole : ContainerOf(*part),
                      QRect(part->mapTo(&content, QPoint()), part->size()), part->font(),
                      part->testAttribute(Qt::WA_SetFont)});
    if (!whole) Learn(content, *part);
  }
}

QWidget* PlainWindow::MakeContent(QWidget* parent, Qt::WindowFlags flags) const {
  auto* content = new QWidget(parent, flags);
  content->setFixedSize(size_);
  for (const Part& part : parts_) {
    QWidget* widget = part.make(content);
    widget->setGeometry(part.place);
    if (part.ownFont) widget->setFont(part.font);
  }
  return content;
}

QWidget* PlainWindow::Show() const {
  QWidget* window = nullptr;
  if (area_ == nullptr) {
    window = MakeContent(frame_, Qt::Dialog);
  } else {
    auto* child = new QMdiSubWindow;
    child->setWidget(MakeContent(nullptr, {}));
    area_->addSubWindow(child);
    window = child;
  }
  window->setObjectName("plain");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->show();
  return window;
}

PlainCard::PlainCard(const QPixmap& picture, QWidget* parent)
    : QWidget(parent),
      picture_(QPixmap::fromImage(picture.toImage().convertToFormat(QImage::Format_RGB32))) {
  setObjectName("plain");
  // Nothing behind it is painted too.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(picture.deviceIndependentSize().toSize());
  show();
}

void PlainCard::paintEvent(QPaintEvent*) {
  QPainter(this).drawPixmap(0, 0, picture_);
}
