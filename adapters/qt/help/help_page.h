#pragma once

#include <QTextBrowser>

namespace tessara {

class ChmFile;

/// Shows pages of a help file. It opens what is inside the file and nothing else: a link, picture
/// or style sheet from elsewhere, on this machine or another, is not followed.
class HelpPage : public QTextBrowser {
 public:
  /// The file outlives the page.
  explicit HelpPage(const ChmFile& file);

  /// Opens a page of the file; an address from elsewhere or of a missing page does nothing.
  void Open(const QUrl& address);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  /// A page has the colours of its links from the palette with which it is read.
  void changeEvent(QEvent* event) override;

 private:
  [[nodiscard]] QVariant Picture(const QString& entry) const;

  const ChmFile& file_;
};

}  // namespace tessara
