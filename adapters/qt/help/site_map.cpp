#include "adapters/qt/help/site_map.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace tessara {

namespace {

/// What finds an attribute within a tag, and its value.
QRegularExpression PatternOf(const QString& attribute) {
  return QRegularExpression(
      QStringLiteral(R"re(\b%1\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s>]+)))re").arg(attribute),
      QRegularExpression::CaseInsensitiveOption);
}

/// Without entities. Few values have any, and reading HTML takes its time.
QString PlainText(const QString& value) {
  const bool plain = !value.contains(u'&') && !value.contains(u'<') && value.simplified() == value;
  return plain ? value : QTextDocumentFragment::fromHtml(value).toPlainText();
}

/// The value that the pattern finds within a tag, without quotes; empty where it is not there.
QString Attribute(const QString& tag, const QRegularExpression& pattern) {
  const QRegularExpressionMatch found = pattern.match(tag);
  return PlainText(found.captured(found.lastCapturedIndex() < 1 ? 1 : found.lastCapturedIndex()));
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
      static const QRegularExpression name = PatternOf(QStringLiteral("name"));
      static const QRegularExpression value = PatternOf(QStringLiteral("value"));
      TakeParameter(Attribute(tag, name), Attribute(tag, value));
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
