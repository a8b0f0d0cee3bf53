#include "adapters/posix/code_page_of_locale.h"

#include <doctest/doctest.h>
#include <optional>
#include <set>
#include <string>

#include "tests/support/environment_variable.h"
#include "tests/support/every_byte.h"

namespace tessara::test {

namespace {

const char* const kNames[] = {"WINDOWS-1250", "WINDOWS-1251", "WINDOWS-1252", "WINDOWS-1253",
                              "WINDOWS-1254", "WINDOWS-1255", "WINDOWS-1256", "WINDOWS-1257",
                              "WINDOWS-1258", "WINDOWS-874"};

}  // namespace

TEST_CASE("the code page follows the language of the locale") {
  struct Case {
    const char* locale;
    const char* codePage;
  };
  const Case cases[] = {
      {"en_GB.UTF-8", "WINDOWS-1252"},
      {"de_DE@euro", "WINDOWS-1252"},
      {"C", "WINDOWS-1252"},
      {"POSIX", "WINDOWS-1252"},
      {"", "WINDOWS-1252"},
      {"xx_YY.UTF-8", "WINDOWS-1252"},
      {"ja_JP.UTF-8", "WINDOWS-1252"},
      {"cs_CZ.UTF-8", "WINDOWS-1250"},
      {"pl", "WINDOWS-1250"},
      {"ru_RU.UTF-8", "WINDOWS-1251"},
      {"uk_UA", "WINDOWS-1251"},
      {"sr_RS.UTF-8", "WINDOWS-1251"},
      {"sr_RS.UTF-8@latin", "WINDOWS-1250"},
      {"sr_RS@latin", "WINDOWS-1250"},
      {"el_GR.UTF-8", "WINDOWS-1253"},
      {"tr_TR.UTF-8", "WINDOWS-1254"},
      {"he_IL.UTF-8", "WINDOWS-1255"},
      {"ar_EG.UTF-8", "WINDOWS-1256"},
      {"lv_LV.UTF-8", "WINDOWS-1257"},
      {"vi_VN.UTF-8", "WINDOWS-1258"},
      {"th_TH.UTF-8", "WINDOWS-874"},
      {"pl_PL@strange", "WINDOWS-1250"},
  };
  for (const Case& c : cases) {
    CAPTURE(c.locale);
    CHECK(CodePageNameOf(c.locale) == c.codePage);
  }
}

TEST_CASE("the first variable that is set tells the locale") {
  struct Case {
    std::optional<std::string> all;
    std::optional<std::string> characters;
    std::optional<std::string> language;
    char16_t held;
  };
  const Case cases[] = {
      {"ru_RU.UTF-8", "el_GR.UTF-8", "pl_PL.UTF-8", u'\u0436'},
      {std::nullopt, "el_GR.UTF-8", "pl_PL.UTF-8", u'\u03B1'},
      {"", "", "pl_PL.UTF-8", u'\u0142'},
      {std::nullopt, std::nullopt, std::nullopt, u'\u00E9'},
  };
  for (const Case& c : cases) {
    const EnvironmentVariable all("LC_ALL", c.all);
    const EnvironmentVariable characters("LC_CTYPE", c.characters);
    const EnvironmentVariable language("LANG", c.language);
    CHECK(CodePageOfLocale().Encode(Text(1, c.held)));
  }
}

TEST_CASE("every byte of every code page comes back as it was") {
  const std::string every = EveryByte();
  for (const char* const name : kNames) {
    CAPTURE(name);
    const CodePage codePage = CodePageNamed(name);
    const Text text = codePage.Decode(every);
    CHECK(codePage.Encode(text) == every);
    CHECK(std::set<char16_t>(text.begin(), text.end()).size() == 256);
  }
}

TEST_CASE("the system's tables have the letters of their languages") {
  CHECK(CodePageNamed("WINDOWS-1250").Decode("\xB3") == u"\u0142");
  CHECK(CodePageNamed("WINDOWS-1251").Decode("\xE6") == u"\u0436");
  CHECK(CodePageNamed("WINDOWS-1253").Decode("\xE1") == u"\u03B1");
  CHECK(CodePageNamed("WINDOWS-1255").Decode("\xE0") == u"\u05D0");
  CHECK(CodePageNamed("WINDOWS-1258").Decode("\xC3\xF5") == u"\u0102\u01A1");
}

TEST_CASE("the system's western table is the built-in one") {
  const std::string every = EveryByte();
  CHECK(CodePageNamed("WINDOWS-1252").Decode(every) == CodePage::Western().Decode(every));
}

TEST_CASE("a code page that the system does not know is the western one") {
  CHECK(CodePageNamed("NO-SUCH-PAGE").Decode("\x80") == u"\u20AC");
}

}  // namespace tessara::test
