#include "adapters/qt/text/qt_text.h"

namespace tessara {

QString ToQString(TextView text) {
  // Unit by unit: QString::fromUtf16 would take a byte order mark away.
  const auto* const units = reinterpret_cast<const QChar*>(text.data());
  return QString(units, static_cast<qsizetype>(text.size()));
}

Text FromQString(const QString& text) {
  return text.toStdU16String();
}

QString LinesForQt(TextView text) {
  return ToQString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString OneLineForQt(TextView text) {
  return LinesForQt(text).replace(u'\n', u' ').replace(u'\r', u' ');
}

QString TitleForQt(TextView text) {
  return OneLineForQt(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

}  // namespace tessara
