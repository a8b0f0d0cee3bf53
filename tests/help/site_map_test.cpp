#include "adapters/qt/help/site_map.h"

#include <doctest/doctest.h>

#include "tests/help/help_fixture.h"

namespace tessara::test {

namespace {

/// Entries as "depth name>page", with blanks between.
QString Told(const QString& text) {
  QStringList told;
  for (const SiteMapEntry& entry : ParseSiteMap(text))
    told += QStringLiteral("%1 %2>%3").arg(entry.depth).arg(entry.name, entry.page);
  return told.join(QStringLiteral("; "));
}

struct Case {
  const char* what;
  const char* text;
  const char* told;
};

constexpr Case kCases[] = {
    {"no text", "", ""},
    {"one entry",
     R"(<UL><LI><OBJECT type="text/sitemap"><param name="Name" value="A"><param name="Local" value="a.html"></OBJECT></UL>)",
     "0 A>a.html"},
    {"lists within lists are deeper entries",
     R"(<ul><object><param name="Name" value="A"></object><ul><object><param name="Name" value="B"></object></ul>
        <object><param name="Name" value="C"></object></ul>)",
     "0 A>; 1 B>; 0 C>"},
    {"small letters, single quotes and no quotes",
     "<ul><li><object type=text/sitemap><param name=Name value='A b'><param value=a.html "
     "name=local></object></ul>",
     "0 A b>a.html"},
    {"entities are characters",
     R"(<ul><object><param name="Name" value="&lt;A &amp; B&gt;"></object></ul>)", "0 <A & B>>"},
    {"an object without a name is no entry",
     R"(<object type="text/site properties"><param name="Window Styles" value="1"></object>)", ""},
    {"of several pages of an entry the first counts",
     R"(<ul><object><param name="Name" value="A"><param name="Name" value="B"><param name="Local" value="a.html">
        <param name="Local" value="b.html"></object></ul>)",
     "0 A>a.html"},
    {"too many list ends", R"(</ul></ul><object><param name="Name" value="A"></object>)", "0 A>"},
    {"a quote that never ends loses its own entry only",
     R"(<ul><object><param name="Name" value="A></object><object><param name=Name value=B></object>)",
     "0 B>"},
    {"an object that never ends is no entry", R"(<ul><object><param name="Name" value="A">)", ""},
};

}  // namespace

TEST_CASE("a contents or index file is read as far as it can be read") {
  for (const Case& one : kCases) {
    CAPTURE(one.what);
    CHECK(Told(QString::fromUtf8(one.text)) == QString::fromUtf8(one.told));
  }
}

}  // namespace tessara::test
