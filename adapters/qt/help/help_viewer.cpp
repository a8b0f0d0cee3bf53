#include "adapters/qt/help/help_viewer.h"

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <utility>

#include "adapters/qt/help/chm_file.h"
#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/help_page.h"
#include "adapters/qt/look/room_on_screen.h"

namespace tessara {

namespace {

constexpr int kAddressRole = Qt::UserRole;
constexpr QSize kWindowSize(960, 680);
constexpr int kContentsWidth = 280;

/// A widget's name for tests and its name for screen readers.
void Name(QWidget& widget, const char* objectName, const QString& accessibleName) {
  widget.setObjectName(QLatin1String(objectName));
  widget.setAccessibleName(accessibleName);
}

QUrl WithoutAnchor(const QUrl& address) {
  return address.adjusted(QUrl::RemoveFragment);
}

}  // namespace

HelpViewer::HelpViewer(std::unique_ptr<ChmFile> file)
    : file_(std::move(file)),
      book_(std::make_unique<HelpBook>(ReadHelpBook(*file_))),
      page_(new HelpPage(*file_)),
      sides_(new QTabWidget),
      contents_(new QTreeWidget),
      find_(new QLineEdit),
      index_(new QListWidget) {
  setObjectName(QStringLiteral("HelpViewer"));
  setWindowTitle(book_->title.isEmpty() ? QStringLiteral("Help") : book_->title);
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);
  LayOut();
  AddActions();
  FillContents(book_->contents);
  FillIndex(book_->index);
  OpenFirstPage();
}

/// The page reads from the file until it is gone.
HelpViewer::~HelpViewer() {
  delete page_;
}

void HelpViewer::BringForward() {
  sides_->setCurrentIndex(0);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpViewer::LayOut() {
  Name(*page_, "HelpPage", tr("Help page"));
  Name(*sides_, "HelpSides", tr("Contents and index"));
  Name(*contents_, "HelpContents", tr("Contents"));
  contents_->setHeaderHidden(true);
  sides_->addTab(contents_, tr("Contents"));
  sides_->addTab(MakeIndexTab(), tr("Index"));
  // Its row of tabs takes the focus, which is not the widget itself to a screen reader.
  sides_->setFocusPolicy(Qt::NoFocus);
  sides_->tabBar()->setFocusPolicy(Qt::TabFocus);
  auto* splitter = new QSplitter;
  splitter->setAccessibleName(tr("Contents and page"));
  splitter->addWidget(sides_);
  splitter->addWidget(page_);
  splitter->handle(1)->setAccessibleName(tr("Width of the contents"));
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kContentsWidth, kWindowSize.width() - kContentsWidth});
  setCentralWidget(splitter);
  resize(kWindowSize.boundedTo(RoomOnScreen()));
  contents_->setFocus();
}

QWidget* HelpViewer::MakeIndexTab() {
  Name(*find_, "HelpFind", tr("Find in the index"));
  find_->setPlaceholderText(tr("Find in the index"));
  find_->setClearButtonEnabled(true);
  Name(*index_, "HelpIndex", tr("Index"));
  auto* tab = new QWidget;
  auto* column = new QVBoxLayout(tab);
  column->addWidget(find_);
  column->addWidget(index_);
  return tab;
}

QAction* HelpViewer::AddAction(QWidget& bar, const QString& text, int icon,
                               const QKeySequence& keys) {
  auto* action =
      new QAction(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)), text, this);
  action->setShortcut(keys);
  bar.addAction(action);
  return action;
}

void HelpViewer::AddActions() {
  QToolBar* bar = addToolBar(tr("Pages"));
  // Not every version of Qt tells of a bar by its title.
  bar->setAccessibleName(bar->windowTitle());
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QAction* back = AddAction(*bar, tr("Back"), QStyle::SP_ArrowBack, Qt::ALT | Qt::Key_Left);
  QAction* forward =
      AddAction(*bar, tr("Forward"), QStyle::SP_ArrowForward, Qt::ALT | Qt::Key_Right);
  QAction* home = AddAction(*bar, tr("Home"), QStyle::SP_DirHomeIcon, Qt::ALT | Qt::Key_Home);
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(back, &QAction::triggered, page_, &HelpPage::backward);
  connect(forward, &QAction::triggered, page_, &HelpPage::forward);
  connect(home, &QAction::triggered, this, &HelpViewer::OpenFirstPage);
  connect(page_, &HelpPage::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &HelpPage::forwardAvailable, forward, &QAction::setEnabled);
  connect(page_, &HelpPage::sourceChanged, this, &HelpViewer::MarkInContents);
  connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this,
          &HelpViewer::FocusOtherSide);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          &HelpViewer::FocusIndex);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void HelpViewer::FillContents(const QList<SiteMapEntry>& entries) {
  QList<QTreeWidgetItem*> parents{contents_->invisibleRootItem()};
  for (const SiteMapEntry& entry : entries) {
    // A list may be nested deeper than its parents go.
    while (parents.size() > entry.depth + 1) parents.removeLast();
    auto* item = new QTreeWidgetItem(parents.last(), {entry.name});
    if (!entry.page.isEmpty()) item->setData(0, kAddressRole, HelpAddress(entry.page));
    parents.append(item);
  }
  contents_->expandAll();
  connect(contents_, &QTreeWidget::currentItemChanged, page_, [this](const QTreeWidgetItem* item) {
    if (item != nullptr) page_->Open(item->data(0, kAddressRole).toUrl());
  });
}

void HelpViewer::FillIndex(const QList<SiteMapEntry>& entries) {
  for (const SiteMapEntry& entry : entries) {
    auto* item = new QListWidgetItem(entry.name, index_);
    item->setData(kAddressRole, HelpAddress(entry.page));
  }
  const auto open = [this](const QListWidgetItem* item) {
    if (item != nullptr && !item->isHidden()) page_->Open(item->data(kAddressRole).toUrl());
  };
  connect(index_, &QListWidget::currentItemChanged, page_, open);
  connect(index_, &QListWidget::itemActivated, page_, open);
  connect(find_, &QLineEdit::textChanged, this, &HelpViewer::NarrowIndex);
  connect(find_, &QLineEdit::returnPressed, page_, [this, open] { open(index_->currentItem()); });
}

/// Leaves the entries that hold the words typed, and goes to the first of them.
void HelpViewer::NarrowIndex(const QString& part) {
  const QSignalBlocker quiet(index_);
  index_->setCurrentItem(nullptr);
  for (int row = 0; row < index_->count(); ++row) {
    QListWidgetItem* item = index_->item(row);
    item->setHidden(!item->text().contains(part.trimmed(), Qt::CaseInsensitive));
    if (index_->currentItem() == nullptr && !item->isHidden()) index_->setCurrentItem(item);
  }
}

void HelpViewer::MarkInContents(const QUrl& address) {
  const QSignalBlocker quiet(contents_);
  for (QTreeWidgetItemIterator item(contents_); *item != nullptr; ++item) {
    const QUrl entry = (*item)->data(0, kAddressRole).toUrl();
    if (WithoutAnchor(entry) == WithoutAnchor(address)) return contents_->setCurrentItem(*item);
  }
  contents_->setCurrentItem(nullptr);
}

void HelpViewer::OpenFirstPage() {
  page_->Open(HelpAddress(book_->firstPage));
}

void HelpViewer::FocusOtherSide() {
  QWidget* side = sides_->currentIndex() == 0 ? static_cast<QWidget*>(contents_) : find_;
  (page_->hasFocus() ? side : page_)->setFocus(Qt::ShortcutFocusReason);
}

void HelpViewer::FocusIndex() {
  sides_->setCurrentIndex(1);
  find_->setFocus(Qt::ShortcutFocusReason);
  find_->selectAll();
}

}  // namespace tessara
