#include "import/line_reader.h"

#include <algorithm>
#include <doctest/doctest.h>
#include <vector>

#include "tests/support/error_of.h"
#include "tests/support/sample_deck.h"
#include "tests/unit/import/text_file.h"

namespace tessara::test {

namespace {

using TextLines = std::vector<Text>;

TextLines LinesOf(std::string bytes, const CodePage& codePage = CodePage::Western()) {
  TextFile text(std::move(bytes));
  LineReader reader(text.file, codePage);
  TextLines lines;
  while (!reader.AtEnd()) lines.push_back(reader.ReadLine());
  return lines;
}

std::string Bytes(std::string_view bytes) {
  return std::string(bytes);
}

std::string Utf16(const Text& units, bool littleEndian) {
  std::string bytes;
  for (const char16_t unit : units) {
    const char low = static_cast<char>(unit & 0xFFU);
    const char high = static_cast<char>(unit >> 8U);
    bytes += littleEndian ? std::string{low, high} : std::string{high, low};
  }
  return bytes;
}

/// A file of any size that holds one line again and again, and remembers what was asked of it.
class EndlessFile : public File {
 public:
  EndlessFile(std::string_view line, std::uint64_t size, std::size_t& largestRead)
      : line_(line), size_(size), largestRead_(largestRead) {}

  std::size_t ReadAt(std::uint64_t offset, std::span<char> buffer) override {
    largestRead_ = std::max(largestRead_, buffer.size());
    if (offset >= size_) return 0;
    const auto count = std::min<std::uint64_t>(buffer.size(), size_ - offset);
    for (std::size_t at = 0; at < count; ++at) buffer[at] = line_[(offset + at) % line_.size()];
    return count;
  }
  void WriteAt(std::uint64_t, std::span<const char>) override {}

 private:
  std::string_view line_;
  std::uint64_t size_;
  std::size_t& largestRead_;
};

class EndlessFiles : public MemoryFiles {
 public:
  std::size_t largestRead = 0;
  std::unique_ptr<File> Open(const Text&, OpenMode) override {
    return std::make_unique<EndlessFile>("line\r\n", 600'000, largestRead);
  }
};

}  // namespace

TEST_CASE("a line ends at CR or CR LF, and at LF too where the first one does") {
  struct Case {
    std::string what;
    std::string bytes;
    TextLines lines;
  };
  const Case cases[] = {
      {"CR LF", "a\r\nb\r\n", {u"a", u"b"}},
      {"CR", "a\rb\r", {u"a", u"b"}},
      {"LF", "a\nb\n", {u"a", u"b"}},
      {"CR and CR LF mixed", "a\rb\r\nc", {u"a", u"b", u"c"}},
      {"no end of line at all", "a", {u"a"}},
      {"no end behind the last line", "a\r\nb", {u"a", u"b"}},
      {"empty lines, CR LF", "\r\n\r\na\r\n\r\n", {u"", u"", u"a", u""}},
      {"empty lines, CR", "\r\r", {u"", u""}},
      {"empty lines, LF", "\n\na\n\n", {u"", u"", u"a", u""}},
      {"a stray CR among LF", "a\nb\rc\nd", {u"a", u"b", u"c", u"d"}},
      {"LF before CR are two ends", "a\n\rb", {u"a", u"", u"b"}},
      {"LF alone is text where the first line ends in CR LF",
       "a\r\nb\nc\r\nd",
       {u"a", u"b\nc", u"d"}},
      {"LF behind CR LF is text", "a\r\n\nb", {u"a", u"\nb"}},
      {"LF alone is text where the first line ends in CR", "a\rb\nc", {u"a", u"b\nc"}},
      {"CR LF behind a first line of LF is one end", "a\nb\r\nc", {u"a", u"b", u"c"}},
      {"NUL bytes are kept", Bytes({"a\0b\r\n\0\r\n", 8}), {Text(u"a\0b", 3), Text(u"\0", 1)}},
      {"the byte 1A, which once ended a text, is text",
       "a\x1A"
       "b\r\nc",
       {u"a\u001Ab", u"c"}},
      {"nothing", "", {}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(LinesOf(c.bytes) == c.lines);
  }
}

TEST_CASE("a line and its end may lie in different blocks") {
  for (const std::size_t length : {kTextBlockSize - 1, kTextBlockSize, kTextBlockSize + 1}) {
    CAPTURE(length);
    const TextLines expected = {Text(length, u'x'), u"y"};
    for (const char* end : {"\r\n", "\r", "\n"}) {
      CHECK(LinesOf(std::string(length, 'x') + end + "y" + end) == expected);
    }
  }
}

TEST_CASE("a line of many blocks is read whole") {
  const std::size_t length = 5 * kTextBlockSize + 7;
  CHECK(LinesOf(std::string(length, 'x')) == TextLines{Text(length, u'x')});
}

TEST_CASE("what a line has behind its bound is passed over") {
  const std::size_t bound = LineReader::kLongestLine;
  for (const std::size_t length : {bound - 1, bound, bound + 1, bound + 3 * kTextBlockSize}) {
    CAPTURE(length);
    const TextLines expected = {Text(std::min(length, bound), u'x'), u"y"};
    CHECK(LinesOf(std::string(length, 'x') + "\r\ny") == expected);
  }
}

TEST_CASE("text that is well-formed UTF-8 throughout is read as such, all else by the code page") {
  struct Case {
    std::string what;
    std::string bytes;
    TextLines lines;
  };
  const Case cases[] = {
      {"a letter in UTF-8", "\xC3\xA4\n", {u"\u00E4"}},
      {"the same letter in the code page", "\xE4\n", {u"\u00E4"}},
      {"one byte that is no UTF-8 decides for all",
       "\xC3\xA4\n\xE4\n",
       {u"\u00C3\u00A4", u"\u00E4"}},
      {"a character of the upper rows", "\xE2\x82\xAC", {u"\u20AC"}},
      {"the same one in the code page", "\x80", {u"\u20AC"}},
      {"a character that the code page lacks", "a\xD0\x96z", {u"a\u0416z"}},
      {"one beyond the 16-bit units", "a\xF0\x9F\x98\x80z", {u"a\xD83D\xDE00z"}},
      {"a text that ends within a character", "\xC3\xA4\xC3", {u"\u00C3\u00A4\u00C3"}},
      {"the mark before ASCII", "\xEF\xBB\xBFSTD\r\nb", {u"STD", u"b"}},
      {"the mark before UTF-8", "\xEF\xBB\xBF\xC3\xA4", {u"\u00E4"}},
      {"the mark before a byte that is none",
       "\xEF\xBB\xBF"
       "a\xE4z",
       {u"a\u00E4z"}},
      {"the mark alone", "\xEF\xBB\xBF", {}},
      {"the mark in another place",
       "a\n\xEF\xBB\xBF"
       "b",
       {u"a",
        u"\uFEFF"
        u"b"}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    CHECK(LinesOf(c.bytes) == c.lines);
  }
}

TEST_CASE("bytes that are no UTF-8 are characters of the program's code page") {
  CodePage::UpperHalf cyrillicLetter{};
  cyrillicLetter[0xC6 - 0x80] = u'\u0416';
  const CodePage codePage(cyrillicLetter);
  CHECK(LinesOf("\xC6", codePage) == TextLines{u"\u0416"});
  CHECK(LinesOf("\xD0\x96", codePage) == TextLines{u"\u0416"});
  CHECK(LinesOf("\xC3\xA4", codePage) == TextLines{u"\u00E4"});
}

TEST_CASE("a text with the mark of UTF-16 is read as such, in either order of bytes") {
  const TextLines text = {u"STD", u"\u0416\u4E2D\xD83D\xDE00", u"", u"\uFEFFx"};
  for (const bool littleEndian : {true, false}) {
    for (const Text& end : {Text(u"\r\n"), Text(u"\r"), Text(u"\n")}) {
      Text units = u"\uFEFF";
      for (const Text& line : text) units += line + end;
      CHECK(LinesOf(Utf16(units, littleEndian)) == text);
    }
  }
}

TEST_CASE("what is no character in UTF-16 becomes the replacement character") {
  CHECK(LinesOf(Utf16(Text{0xFEFF, u'a', 0xDC80, u'b', 0xD83D}, true)) ==
        TextLines{u"a\uFFFDb\uFFFD"});
  CHECK(LinesOf(Utf16(u"\uFEFFa", true) + "b") == TextLines{u"a\uFFFD"});
  CHECK(LinesOf(Utf16(u"\uFEFF", true)).empty());
}

TEST_CASE("a pair of surrogates may lie in two blocks of UTF-16") {
  const Text filler(kTextBlockSize / 2 - 2, u'x');
  for (const bool littleEndian : {true, false}) {
    const Text text = filler + u"\xD83D\xDE00\u0416";
    CHECK(LinesOf(Utf16(u"\uFEFF" + text, littleEndian)) == TextLines{text});
  }
}

TEST_CASE("a UTF-8 character may lie in two blocks") {
  const std::string filler(kTextBlockSize - 1, 'x');
  CHECK(LinesOf(filler + "\xC3\xA4") == TextLines{Text(kTextBlockSize - 1, u'x') + u"\u00E4"});
}

TEST_CASE("reading past the end is error 62") {
  for (const char* bytes : {"", "\xEF\xBB\xBF"}) {
    TextFile text(bytes);
    LineReader reader(text.file, CodePage::Western());
    CHECK(reader.AtEnd());
    CHECK(ErrorOf([&] { reader.ReadLine(); }) == 62);
  }
  TextFile text("a\r\n");
  LineReader reader(text.file, CodePage::Western());
  reader.ReadLine();
  CHECK(ErrorOf([&] { reader.ReadLine(); }) == 62);
}

TEST_CASE("a device that fails is its error, at the look through the file and at the reading") {
  TextFile text(std::string(2 * kTextBlockSize, 'x'));
  const auto fail = [](MemoryFiles::Operation, const Text&) {
    return std::optional(ErrorNumber::kDeviceIo);
  };
  LineReader reader(text.file, CodePage::Western());
  text.files.fault = fail;
  CHECK(ErrorOf([&] { reader.ReadLine(); }) == 57);
  CHECK(ErrorOf([&] { LineReader(text.file, CodePage::Western()); }) == 57);
}

TEST_CASE("a file that is cut while it is read ends where it is cut") {
  TextFile text(
      "\xEF\xBB\xBF"
      "abc");
  int reads = 0;
  text.files.fault = [&](MemoryFiles::Operation, const Text& path) -> std::optional<ErrorNumber> {
    constexpr int kReadsOfLookThrough = 1;
    if (++reads == kReadsOfLookThrough + 1) text.files.files.at(path)->resize(1);
    return std::nullopt;
  };
  LineReader reader(text.file, CodePage::Western());
  CHECK(reader.AtEnd());
}

TEST_CASE("a large file is read in small blocks") {
  EndlessFiles files;
  FileNumber file(files);
  file.OpenInput(kTextPath);
  LineReader reader(file, CodePage::Western());
  std::size_t lines = 0;
  while (!reader.AtEnd()) lines += reader.ReadLine() == u"line" ? 1 : 0;
  CHECK(lines == 100'000);
  CHECK(files.largestRead == kTextBlockSize);
}

}  // namespace tessara::test
