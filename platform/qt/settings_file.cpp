#include "platform/qt/settings_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <utility>

namespace tessara {

namespace {

/// What is written behind a backslash, and what it stands for.
constexpr std::pair<char, char> kEscapes[] = {{'\\', '\\'}, {'"', '"'}, {'n', '\n'}, {'r', '\r'}};

char UnescapedOf(char written) {
  for (const auto& [letter, character] : kEscapes) {
    if (letter == written) return character;
  }
  return written;
}

QByteArray Escaped(const QByteArray& text) {
  QByteArray escaped;
  for (const char character : text) {
    char written = character;
    for (const auto& [letter, stood] : kEscapes) {
      if (stood != character) continue;
      escaped += '\\';
      written = letter;
    }
    escaped += written;
  }
  return escaped;
}

/// As it stands in the file. What somebody could take for something else goes in quotes.
QByteArray Written(const QString& value) {
  const QByteArray text = value.toUtf8();
  const QByteArray escaped = Escaped(text);
  const bool plain = escaped == text && text.trimmed() == text;
  return plain ? text : '"' + escaped + '"';
}

QString ReadBack(QByteArray written) {
  const bool quoted = written.size() > 1 && written.startsWith('"') && written.endsWith('"');
  if (!quoted) return QString::fromUtf8(written);
  written = written.mid(1, written.size() - 2);
  QByteArray text;
  for (qsizetype at = 0; at < written.size(); ++at) {
    const bool escape = written[at] == '\\' && at + 1 < written.size();
    text += escape ? UnescapedOf(written[++at]) : written[at];
  }
  return QString::fromUtf8(text);
}

SettingsTexts TextsIn(const QByteArray& bytes) {
  SettingsTexts texts;
  QString section;
  for (const QByteArray& untrimmed : bytes.split('\n')) {
    const QByteArray line = untrimmed.trimmed();
    const qsizetype equals = line.indexOf('=');
    if (line.startsWith('[') && line.endsWith(']')) {
      section = QString::fromUtf8(line.mid(1, line.size() - 2)) + u'/';
    } else if (equals > 0 && !line.startsWith(';') && !line.startsWith('#')) {
      const QString key = QString::fromUtf8(line.left(equals).trimmed());
      texts[section + key] = ReadBack(line.mid(equals + 1).trimmed());
    }
  }
  return texts;
}

QByteArray BytesOf(const SettingsTexts& texts) {
  QByteArray bytes;
  QString section;
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    const qsizetype slash = text.key().indexOf(u'/');
    const QString itsSection = text.key().left(slash < 0 ? 0 : slash);
    if (itsSection != section) bytes += '[' + itsSection.toUtf8() + "]\n";
    section = itsSection;
    bytes += text.key().mid(slash + 1).toUtf8() + '=' + Written(*text) + '\n';
  }
  return bytes;
}

}  // namespace

std::optional<SettingsTexts> ReadSettingsFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return file.exists() ? std::nullopt : std::optional(SettingsTexts());
  }
  const QByteArray bytes = file.readAll();
  return file.error() == QFile::NoError ? std::optional(TextsIn(bytes)) : std::nullopt;
}

void WriteSettingsFile(const QString& path, const SettingsTexts& texts) {
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  const QByteArray bytes = BytesOf(texts);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return;
  // By itself, commit would not notice that the last bytes can't be written.
  if (file.flush()) file.commit();
}

}  // namespace tessara
