#include "platform/qt/help/site_map.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace tessara {

namespace {

/// The value of an attribute within a tag, without quotes and entities; empty where it is not
/// there.
QString Attribute(const QString& tag, const QString& name) {
  const QRegularExpression attribute(
      QStringLiteral(R"re(\b%1\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s>]+)))re").arg(name),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch found = attribute.match(tag);
  const QString value =
      found.captured(found.lastCapturedIndex() < 1 ? 1 : found.lastCapturedIndex());
  return QTextDocumentFragment::fromHtml(value).toPlainText();
}

bool Is(const QString& name, const char* other) {
  return name.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

/// Reads tag by tag; lists give the depth, an object with a name is an entry.
class SiteMapReader {
 public:
  void Take(const QString& element, bool isEnd, const QString& tag) {
    if (Is(element, "ul")) {
      depth_ += isEnd ? -1 : 1;
    } else if (Is(element, "param")) {
      TakeParameter(Attribute(tag, QStringLiteral("name")),
                    Attribute(tag, QStringLiteral("value")));
    } else if (isEnd) {
      FinishEntry();
    } else {
      entry_ = {};
    }
  }
  [[nodiscard]] QList<SiteMapEntry> Entries() const { return entries_; }

 private:
  /// An index may give several pages for an entry: the first counts.
  void TakeParameter(const QString& name, const QString& value) {
    QString* part = Is(name, "Name") ? &entry_.name : Is(name, "Local") ? &entry_.page : nullptr;
    if (part != nullptr && part->isEmpty()) *part = value;
  }
  void FinishEntry() {
    entry_.depth = depth_ > 1 ? depth_ - 1 : 0;
    if (!entry_.name.isEmpty()) entries_.append(entry_);
    entry_ = {};
  }

  int depth_ = 0;
  SiteMapEntry entry_;
  QList<SiteMapEntry> entries_;
};

}  // namespace

QList<SiteMapEntry> ParseSiteMap(const QString& text) {
  static const QRegularExpression tag(
      QStringLiteral(R"re(<\s*(/?)\s*(ul|object|param)\b((?:[^>"']|"[^"]*"|'[^']*')*+)>)re"),
      QRegularExpression::CaseInsensitiveOption);
  SiteMapReader reader;
  for (auto matches = tag.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    reader.Take(match.captured(2), !match.captured(1).isEmpty(), match.captured(3));
  }
  return reader.Entries();
}

}  // namespace tessara
