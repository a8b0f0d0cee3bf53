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
#include <cstddef>
#include <memory>

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

Make LabelLike(const QLabel& label) {
  if (label.pixmap().isNull()) return WithText<QLabel>(label.text());
  return [picture = label.pixmap()](QWidget* parent) {
    auto* plain = new QLabel(parent);
    plain->setPixmap(picture);
    return plain;
  };
}

Make AreaLike(const QPlainTextEdit& area) {
  return [text = area.toPlainText(), across = area.horizontalScrollBarPolicy(),
          down = area.verticalScrollBarPolicy()](QWidget* parent) {
    auto* plain = new QPlainTextEdit(text, parent);
    plain->setHorizontalScrollBarPolicy(across);
    plain->setVerticalScrollBarPolicy(down);
    return plain;
  };
}

Make ComboLike(const QComboBox& combo) {
  QStringList entries;
  for (int entry = 0; entry < combo.count(); ++entry) entries << combo.itemText(entry);
  return [entries, chosen = combo.currentIndex()](QWidget* parent) {
    auto* plain = new QComboBox(parent);
    plain->addItems(entries);
    plain->setCurrentIndex(chosen);
    return plain;
  };
}

template <class Item>
using Entries = std::vector<std::shared_ptr<Item>>;

template <class Item>
QList<Item*> CopiesOf(const Entries<Item>& entries) {
  QList<Item*> copies;
  for (const auto& entry : entries) copies << entry->clone();
  return copies;
}

Make ListLike(const QListWidget& list) {
  Entries<QListWidgetItem> entries;
  for (int row = 0; row < list.count(); ++row) entries.emplace_back(list.item(row)->clone());
  return [entries](QWidget* parent) {
    auto* plain = new QListWidget(parent);
    for (QListWidgetItem* entry : CopiesOf(entries)) plain->addItem(entry);
    return plain;
  };
}

/// With the ticks of its entries, and the widths of its columns.
Make TreeLike(const QTreeWidget& tree) {
  Entries<QTreeWidgetItem> entries;
  for (int row = 0; row < tree.topLevelItemCount(); ++row) {
    entries.emplace_back(tree.topLevelItem(row)->clone());
  }
  std::vector<int> widths;
  widths.reserve(static_cast<std::size_t>(tree.columnCount()));
  for (int column = 0; column < tree.columnCount(); ++column) {
    widths.push_back(tree.columnWidth(column));
  }
  const std::shared_ptr<QTreeWidgetItem> header(tree.headerItem()->clone());
  return [=, headless = tree.isHeaderHidden()](QWidget* parent) {
    auto* plain = new QTreeWidget(parent);
    plain->setHeaderItem(header->clone());
    plain->setHeaderHidden(headless);
    plain->addTopLevelItems(CopiesOf(entries));
    for (std::size_t column = 0; column < widths.size(); ++column) {
      plain->setColumnWidth(static_cast<int>(column), widths[column]);
    }
    return plain;
  };
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
  if (auto* line = qobject_cast<const QLineEdit*>(&widget))
    return WithText<QLineEdit>(line->text());
  if (auto* text = qobject_cast<const QTextEdit*>(&widget))
    return WithText<QTextEdit>(text->toHtml());
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return LabelLike(*label);
  if (auto* area = qobject_cast<const QPlainTextEdit*>(&widget)) return AreaLike(*area);
  if (auto* combo = qobject_cast<const QComboBox*>(&widget)) return ComboLike(*combo);
  if (auto* list = qobject_cast<const QListWidget*>(&widget)) return ListLike(*list);
  if (auto* tree = qobject_cast<const QTreeWidget*>(&widget)) return TreeLike(*tree);
  return nullptr;
}

Make ContainerOf(const QWidget& widget) {
  if (auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    return [title = box->title()](QWidget* parent) { return new QGroupBox(title, parent); };
  }
  return [](QWidget* parent) { return new QWidget(parent); };
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
