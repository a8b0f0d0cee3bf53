#include "tests/printing/printed_pdf.h"

#include <cstdio>
#include <memory>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace tessara::test {

namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;

std::string OutputOf(const std::string& command) {
  struct Close {
    void operator()(FILE* pipe) const { pclose(pipe); }
  };
  const std::unique_ptr<FILE, Close> pipe(popen(command.c_str(), "r"));
  if (pipe == nullptr) throw std::runtime_error("can't run: " + command);
  std::string output;
  char buffer[4096];
  for (std::size_t got = 0; (got = fread(buffer, 1, sizeof buffer, pipe.get())) > 0;) {
    output.append(buffer, got);
  }
  return output;
}

double Millimetres(const std::string& points) {
  return std::stod(points) * kMillimetresPerPoint;
}

void ReplaceAll(std::string& text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
    text.replace(at, what.size(), with);
  }
}

std::string WithoutEntities(std::string text) {
  ReplaceAll(text, "&lt;", "<");
  ReplaceAll(text, "&gt;", ">");
  ReplaceAll(text, "&quot;", "\"");
  ReplaceAll(text, "&apos;", "'");
  ReplaceAll(text, "&amp;", "&");
  return text;
}

}  // namespace

std::string PrintedPage::Text() const {
  std::string text;
  for (const PrintedWord& word : words) text += (text.empty() ? "" : " ") + word.text;
  return text;
}

PrintedWord PrintedPage::Word(const std::string& text) const {
  const PrintedWord* found = nullptr;
  for (const PrintedWord& word : words) {
    if (word.text != text) continue;
    if (found != nullptr) throw std::runtime_error("twice on the page: " + text);
    found = &word;
  }
  if (found == nullptr) throw std::runtime_error("not on the page: " + text + " in " + Text());
  return *found;
}

bool PrintedPage::Has(const std::string& text) const {
  return (" " + Text() + " ").find(" " + text + " ") != std::string::npos;
}

std::vector<PrintedPage> ReadPdf(const std::string& path) {
  static const std::regex kPage("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">");
  static const std::regex kWord(
      "<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\" xMax=\"([-0-9.]+)\" yMax=\"([-0-9.]+)\">"
      "(.*)</word>");
  std::vector<PrintedPage> pages;
  std::istringstream lines(OutputOf("pdftotext -bbox '" + path + "' -"));
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    if (std::regex_search(line, match, kPage)) {
      pages.push_back({Millimetres(match[1]), Millimetres(match[2]), {}});
    } else if (std::regex_search(line, match, kWord)) {
      pages.back().words.push_back({WithoutEntities(match[5]), Millimetres(match[1]),
                                    Millimetres(match[2]), Millimetres(match[3]),
                                    Millimetres(match[4])});
    }
  }
  return pages;
}

}  // namespace tessara::test
