#include "adapters/posix/code_page_of_locale.h"

#include <cstdint>
#include <cstdlib>
#include <iconv.h>

namespace tessara {

namespace {

struct LanguageCodePage {
  std::string_view languages;  ///< each between blanks
  const char* codePage;
};

constexpr const char* kWestern = "WINDOWS-1252";

constexpr LanguageCodePage kCodePages[] = {
    {" bs cs csb dsb hr hsb hu pl ro sk sl sq sr@latin tk ", "WINDOWS-1250"},
    {" ba be bg ce cv kk ky mk mn os ru sah sr tg tt uk uz@cyrillic ", "WINDOWS-1251"},
    {" el ", "WINDOWS-1253"},
    {" az crh ku tr uz ", "WINDOWS-1254"},
    {" he iw yi ", "WINDOWS-1255"},
    {" ar ckb fa ps sd ug ur ", "WINDOWS-1256"},
    {" et lt ltg lv sgs ", "WINDOWS-1257"},
    {" vi ", "WINDOWS-1258"},
    {" th ", "WINDOWS-874"},
};

/// "sr" of "sr_RS.UTF-8@latin".
std::string LanguageOf(std::string_view locale) {
  return std::string(locale.substr(0, locale.find_first_of("_.@")));
}

/// "@latin" of "sr_RS.UTF-8@latin", or nothing.
std::string ModifierOf(std::string_view locale) {
  const std::size_t at = locale.find('@');
  return at == std::string_view::npos ? std::string() : std::string(locale.substr(at));
}

const char* CodePageOfLanguage(const std::string& language) {
  for (const LanguageCodePage& entry : kCodePages) {
    if (entry.languages.find(" " + language + " ") != std::string_view::npos) {
      return entry.codePage;
    }
  }
  return nullptr;
}

/// The system's converter from a code page to UTF-16, low byte first.
class Converter {
 public:
  explicit Converter(const std::string& codePage)
      : handle_(iconv_open("UTF-16LE", codePage.c_str())) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (Knows()) iconv_close(handle_);
  }

  [[nodiscard]] bool Knows() const { return reinterpret_cast<std::intptr_t>(handle_) != kFailed; }

  /// The character of the byte, or 0 where it has none.
  char16_t CharacterOf(unsigned char byte) {
    char in = static_cast<char>(byte);
    unsigned char out[8] = {};
    char* from = &in;
    char* to = reinterpret_cast<char*>(out);
    std::size_t inLeft = 1;
    std::size_t outLeft = sizeof out;
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    const bool known = iconv(handle_, &from, &inLeft, &to, &outLeft) == 0;
    // A letter is held back where an accent could follow it.
    iconv(handle_, nullptr, nullptr, &to, &outLeft);
    const bool single = known && outLeft == sizeof out - sizeof(char16_t);
    return single ? static_cast<char16_t>(out[0] | (out[1] << 8U)) : char16_t{0};
  }

 private:
  static constexpr std::intptr_t kFailed = -1;
  iconv_t handle_;
};

/// The locale that decides how characters are stored; empty where none is set.
std::string LocaleOfCharacters() {
  for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* const value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

}  // namespace

std::string CodePageNameOf(std::string_view locale) {
  const std::string language = LanguageOf(locale);
  for (const std::string& key : {language + ModifierOf(locale), language}) {
    if (const char* const name = CodePageOfLanguage(key)) return name;
  }
  return kWestern;
}

CodePage CodePageNamed(const std::string& name) {
  Converter converter(name);
  if (!converter.Knows()) return CodePage::Western();
  CodePage::UpperHalf upperHalf{};
  unsigned char byte = 0x80;
  for (char16_t& character : upperHalf) character = converter.CharacterOf(byte++);
  return CodePage(upperHalf);
}

CodePage CodePageOfLocale() {
  const std::string name = CodePageNameOf(LocaleOfCharacters());
  // The most usual one needs no modules of the system's converter.
  return name == kWestern ? CodePage::Western() : CodePageNamed(name);
}

}  // namespace tessara
