#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <doctest/doctest.h>

#include "adapters/qt/help/help_book.h"
#include "tests/help/help_fixture.h"

namespace tessara::test {

namespace {

const QString kSources = QStringLiteral(TESSARA_HELP_SOURCES);

QStringList PagesInSources() {
  return QDir(kSources).entryList({QStringLiteral("*.html")}, QDir::Files);
}

QString TextOf(const ChmFile& file, const QString& entry) {
  return QString::fromUtf8(file.Read(entry).value_or(QByteArray()));
}

/// What a page asks for: links, pictures and style sheets.
QStringList AddressesIn(const QString& page) {
  static const QRegularExpression address(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
  QStringList found;
  for (auto matches = address.globalMatch(page); matches.hasNext();)
    found += matches.next().captured(1);
  return found;
}

QSet<QString> PagesOf(const QList<SiteMapEntry>& entries) {
  QSet<QString> pages;
  for (const SiteMapEntry& entry : entries) pages += entry.page;
  return pages;
}

}  // namespace

TEST_CASE("the help file says its title, its first page, its contents and its index") {
  const HelpBook book = ReadHelpBook(*BuiltHelp());
  CHECK(book.title == QStringLiteral("Tessara Help"));
  CHECK(book.firstPage == QStringLiteral("welcome.html"));
  CHECK(book.contents.first().page == book.firstPage);
  CHECK(book.contents.size() > 10);
  CHECK(book.index.size() > 40);
}

TEST_CASE("every page of the help is in the file and in its contents, and in the user's guide") {
  const auto file = BuiltHelp();
  const QSet<QString> inContents = PagesOf(ReadHelpBook(*file).contents);
  QFile guide(QStringLiteral(TESSARA_USERS_GUIDE));
  REQUIRE(guide.open(QIODevice::ReadOnly));
  const QString guideText = QString::fromUtf8(guide.readAll());
  REQUIRE(PagesInSources().size() > 10);
  for (const QString& page : PagesInSources()) {
    CAPTURE(page);
    CHECK(file->Read(page).has_value());
    CHECK(inContents.contains(page));
    CHECK(guideText.contains(QStringLiteral("(../data/help/%1)").arg(page)));
  }
  CHECK(inContents.size() == PagesInSources().size());
}

TEST_CASE("contents carry the titles of their pages") {
  const auto file = BuiltHelp();
  for (const SiteMapEntry& entry : ReadHelpBook(*file).contents) {
    CAPTURE(entry.page);
    CHECK(TextOf(*file, entry.page).contains(QStringLiteral("<title>%1</title>").arg(entry.name)));
  }
}

TEST_CASE("every entry of the index leads to a page") {
  const auto file = BuiltHelp();
  for (const SiteMapEntry& entry : ReadHelpBook(*file).index) {
    CAPTURE(entry.name);
    CHECK(file->Read(entry.page).has_value());
  }
}

TEST_CASE("every link, picture and style sheet of a page is inside the file") {
  const auto file = BuiltHelp();
  for (const QString& page : PagesInSources()) {
    for (const QString& address : AddressesIn(TextOf(*file, page))) {
      CAPTURE(page);
      CAPTURE(address);
      const QUrl target = HelpAddress(page).resolved(QUrl(address));
      CHECK(IsHelpAddress(target));
      CHECK(file->Read(target.path()).has_value());
      CHECK(target.fragment().isEmpty());
    }
  }
}

TEST_CASE("every picture is there in twice its size") {
  const auto file = BuiltHelp();
  for (const QString& page : PagesInSources()) {
    for (QString address : AddressesIn(TextOf(*file, page)).filter(QStringLiteral(".png"))) {
      CAPTURE(address);
      CHECK(file->Read(address.replace(QStringLiteral(".png"), QStringLiteral("@2x.png"))));
    }
  }
}

}  // namespace tessara::test
