#pragma once

#include <QList>
#include <QMainWindow>
#include <memory>

#include "adapters/qt/help/site_map.h"

class QAction;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTreeWidget;

namespace tessara {

class ChmFile;
class HelpPage;
struct HelpBook;

/// A help file in a window of its own: its contents and index at the left, the page at the right.
/// It keeps nobody waiting, and does not keep the program from ending.
class HelpViewer : public QMainWindow {
 public:
  explicit HelpViewer(std::unique_ptr<ChmFile> file);
  ~HelpViewer() override;

  /// Shows the window with its table of contents, in front of the others.
  void BringForward();

 private:
  void AddActions();
  QAction* AddAction(QWidget& bar, const QString& text, int icon, const QKeySequence& keys);
  void FillContents(const QList<SiteMapEntry>& entries);
  void FillIndex(const QList<SiteMapEntry>& entries);
  [[nodiscard]] QWidget* MakeIndexTab();
  void LayOut();
  void NarrowIndex(const QString& part);
  void MarkInContents(const QUrl& address);
  void OpenFirstPage();
  void FocusOtherSide();
  void FocusIndex();

  std::unique_ptr<ChmFile> file_;
  std::unique_ptr<HelpBook> book_;
  // Widgets belong to the window.
  HelpPage* page_;
  QTabWidget* sides_;
  QTreeWidget* contents_;
  QLineEdit* find_;
  QListWidget* index_;
};

}  // namespace tessara
