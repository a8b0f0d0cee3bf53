#include "adapters/qt/help/help_page.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>

#include "adapters/qt/help/chm_file.h"
#include "adapters/qt/help/help_book.h"

namespace tessara {

namespace {

constexpr qreal kPageMargin = 14;

/// The name of a picture drawn for twice the size: step.png becomes step@2x.png.
QString Doubled(QString entry) {
  const qsizetype dot = entry.lastIndexOf(u'.');
  return dot < 0 ? entry : entry.insert(dot, QStringLiteral("@2x"));
}

}  // namespace

HelpPage::HelpPage(const ChmFile& file) : file_(file) {
  document()->setDocumentMargin(kPageMargin);
  setOpenLinks(false);
  setOpenExternalLinks(false);
  connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::Open);
}

void HelpPage::Open(const QUrl& address) {
  const QUrl target = source().resolved(address);
  if (IsHelpAddress(target) && file_.Read(target.path()).has_value())
    setSource(target, QTextDocument::HtmlResource);
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
  const QUrl address = source().resolved(name);
  if (!IsHelpAddress(address)) return {};
  if (type == QTextDocument::ImageResource) return Picture(address.path());
  const auto bytes = file_.Read(address.path());
  return bytes ? QVariant(QString::fromUtf8(*bytes)) : QVariant();
}

void HelpPage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || source().isEmpty()) return;
  const int place = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(place);
}

QVariant HelpPage::Picture(const QString& entry) const {
  if (devicePixelRatioF() > 1) {
    QImage fine = QImage::fromData(file_.Read(Doubled(entry)).value_or(QByteArray()));
    fine.setDevicePixelRatio(2);
    if (!fine.isNull()) return fine;
  }
  return QImage::fromData(file_.Read(entry).value_or(QByteArray()));
}

}  // namespace tessara
