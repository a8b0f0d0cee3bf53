#include "adapters/qt/help/chm_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <doctest/doctest.h>

#include "adapters/qt/help/help_book.h"
#include "adapters/qt/help/show_help_contents.h"
#include "tests/help/help_fixture.h"

namespace tessara::test {

namespace {

QByteArray BuiltBytes() {
  QFile file(kHelpFile);
  REQUIRE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

/// Where the directory of a help file ends and its pages begin: the head says it.
qsizetype PlaceOfPages(const QByteArray& file) {
  constexpr qsizetype kWhereItStands = 0x58;
  return static_cast<qsizetype>(qFromLittleEndian<quint64>(file.constData() + kWhereItStands));
}

/// A file on the disk with the bytes given.
class Damaged {
 public:
  [[nodiscard]] QString With(const QByteArray& bytes) const {
    QFile file(folder_.filePath(QStringLiteral("damaged.chm")));
    REQUIRE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

 private:
  QTemporaryDir folder_;
};

/// Reads all that the viewer would read; the index leads to the same pages.
void ReadAll(const QString& path) {
  const auto file = ChmFile::Open(path);
  if (file == nullptr) return;
  const HelpBook book = ReadHelpBook(*file);
  for (const SiteMapEntry& entry : book.contents) (void)file->Read(entry.page);
}

}  // namespace

TEST_CASE("an entry is read whole, with or without a leading slash") {
  const auto file = BuiltHelp();
  REQUIRE(file != nullptr);
  QFile source(QStringLiteral(TESSARA_HELP_SOURCES "/welcome.html"));
  REQUIRE(source.open(QIODevice::ReadOnly));
  const QByteArray bytes = source.readAll();
  CHECK((file->Read(QStringLiteral("/welcome.html")) == bytes));
  CHECK((file->Read(QStringLiteral("welcome.html")) == bytes));
}

TEST_CASE("an entry that is not there is nothing") {
  const auto file = BuiltHelp();
  CHECK_FALSE(file->Read(QStringLiteral("nowhere.html")).has_value());
  CHECK_FALSE(file->Read(QString()).has_value());
  CHECK_FALSE(file->Read(QString(5000, u'a')).has_value());
}

TEST_CASE("what is no help file is not opened") {
  const Damaged damaged;
  CHECK(ChmFile::Open(QStringLiteral("/nowhere/TessaraHelp.chm")) == nullptr);
  CHECK(ChmFile::Open(QStringLiteral("/")) == nullptr);
  CHECK(ChmFile::Open(QString()) == nullptr);
  CHECK(ChmFile::Open(damaged.With({})) == nullptr);
  CHECK(ChmFile::Open(damaged.With("ITSF")) == nullptr);
  CHECK(ChmFile::Open(damaged.With(QByteArray(100000, 'x'))) == nullptr);
}

TEST_CASE("a missing file shows no window") {
  ShowHelpContents(QStringLiteral("/nowhere/TessaraHelp.chm"));
  CHECK(HelpWindows().isEmpty());
}

TEST_CASE("a file without a readable page shows no window") {
  const Damaged damaged;
  const QByteArray whole = BuiltBytes();
  for (qsizetype length : {qsizetype{0}, qsizetype{200}, PlaceOfPages(whole)}) {
    CAPTURE(length);
    ShowHelpContents(damaged.With(whole.left(length)));
    CHECK(HelpWindows().isEmpty());
    CloseHelpWindows();
  }
}

TEST_CASE("a file that was cut off behind its first page shows what is left") {
  const Damaged damaged;
  const QByteArray whole = BuiltBytes();
  ShowHelpContents(damaged.With(whole.left(whole.size() / 2)));
  CHECK(HelpWindows().size() == 1);
  CloseHelpWindows();
}

TEST_CASE("a file that was cut off anywhere is read without harm") {
  const Damaged damaged;
  const QByteArray whole = BuiltBytes();
  for (qsizetype length = 0; length < whole.size(); length += 1 + whole.size() / 97)
    ReadAll(damaged.With(whole.left(length)));
}

TEST_CASE("a file with a flipped byte anywhere is read without harm") {
  const Damaged damaged;
  const QByteArray whole = BuiltBytes();
  // The heads byte by byte, the rest here and there.
  for (qsizetype at = 0; at < whole.size(); at += at < 0x100 ? 1 : 1 + whole.size() / 97) {
    QByteArray bytes = whole;
    bytes[at] = static_cast<char>(~bytes[at]);
    ReadAll(damaged.With(bytes));
  }
}

}  // namespace tessara::test
