#include "adapters/qt/help/help_book.h"

#include <QtEndian>

#include "adapters/qt/help/chm_file.h"

namespace tessara {

namespace {

const QString kScheme = QStringLiteral("tessara-help");

/// The entry #SYSTEM: a version number of four bytes, then records of code, length and content.
constexpr qsizetype kVersionSize = 4;
constexpr qsizetype kRecordHeadSize = 4;
enum SystemCode : quint16 { kContentsFile = 0, kIndexFile = 1, kFirstPage = 2, kTitle = 3 };

/// The text of a record, which a zero ends; empty where the record is missing or cut off.
QString SystemText(const QByteArray& system, SystemCode wanted) {
  for (qsizetype at = kVersionSize; at + kRecordHeadSize <= system.size();) {
    const auto code = qFromLittleEndian<quint16>(system.constData() + at);
    const auto length = qFromLittleEndian<quint16>(system.constData() + at + sizeof code);
    at += kRecordHeadSize;
    if (code == wanted) return QString::fromUtf8(system.mid(at, length).split('\0').first());
    at += length;
  }
  return {};
}

QList<SiteMapEntry> SiteMapIn(const ChmFile& file, const QString& entry) {
  return ParseSiteMap(QString::fromUtf8(file.Read(entry).value_or(QByteArray())));
}

}  // namespace

HelpBook ReadHelpBook(const ChmFile& file) {
  const QByteArray system = file.Read(QStringLiteral("#SYSTEM")).value_or(QByteArray());
  HelpBook book{SystemText(system, kTitle), SystemText(system, kFirstPage),
                SiteMapIn(file, SystemText(system, kContentsFile)),
                SiteMapIn(file, SystemText(system, kIndexFile))};
  if (book.firstPage.isEmpty() && !book.contents.isEmpty())
    book.firstPage = book.contents.first().page;
  return book;
}

QUrl HelpAddress(const QString& page) {
  return QUrl(kScheme + QStringLiteral(":/")).resolved(QUrl(page));
}

bool IsHelpAddress(const QUrl& address) {
  return address.scheme() == kScheme && address.authority().isEmpty();
}

}  // namespace tessara
