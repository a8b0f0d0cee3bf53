#include "companion/formats/tables/tsv_head.h"

#include <array>
#include <charconv>
#include <utility>

#include "companion/formats/lower_case.h"
#include "companion/formats/tables/delimited_reader.h"

namespace tessara {

namespace {

struct NamedSeparator {
  std::string_view name;
  char separator;
};

constexpr std::array<NamedSeparator, 6> kSeparators = {{{"tab", '\t'},
                                                        {"comma", ','},
                                                        {"semicolon", ';'},
                                                        {"space", ' '},
                                                        {"pipe", '|'},
                                                        {"colon", ':'}}};
constexpr std::string_view kColumnEnding = " column";

std::string_view WithoutEnd(std::string_view line) {
  return line.substr(0, line.find_first_of("\r\n"));
}

/// The separator by its name or as it stands; what is neither leaves the tab.
char SeparatorOf(std::string_view value) {
  for (const NamedSeparator& one : kSeparators) {
    if (LowerCase(value) == one.name) return one.separator;
  }
  return value.size() == 1 ? value.front() : '\t';
}

std::size_t NumberIn(std::string_view value) {
  std::size_t number = 0;
  std::from_chars(value.data(), value.data() + value.size(), number);
  return number;
}

void TakeLine(TsvHead& head, std::string_view line, std::string_view& columns) {
  const std::size_t colon = line.find(':');
  if (colon == line.npos) return;
  const std::string key = LowerCase(line.substr(1, colon - 1));
  const std::string_view value = line.substr(colon + 1);
  if (key == "separator") head.separator = SeparatorOf(value);
  if (key == "html") head.isHtml = LowerCase(value) == "true";
  if (key == "columns") {
    columns = value;
    head.columnsLine = head.nextLine;
  }
  if (key.ends_with(kColumnEnding)) {
    const std::string name = key.substr(0, key.size() - kColumnEnding.size());
    if (const std::size_t number = NumberIn(value); number > 0 && number <= kMostFields)
      head.otherColumns.try_emplace(number, TsvHead::OtherColumn{name, head.nextLine});
  }
}

std::vector<std::string> Split(std::string_view columns, char separator) {
  std::vector<std::string> names;
  for (std::size_t end = 0; end != columns.npos && names.size() < kMostFields;) {
    end = columns.find(separator);
    names.emplace_back(columns.substr(0, end));
    if (end != columns.npos) columns.remove_prefix(end + 1);
  }
  return names;
}

}  // namespace

TsvHead ReadTsvHead(std::string_view bytes) {
  TsvHead head;
  std::string_view columns;
  while (bytes.substr(head.length).starts_with('#')) {
    const std::string_view line = FirstLineOf(bytes.substr(head.length));
    TakeLine(head, WithoutEnd(line), columns);
    head.length += line.size();
    ++head.nextLine;
  }
  // The separator may stand behind them.
  if (!columns.empty()) head.columns = Split(columns, head.separator);
  return head;
}

}  // namespace tessara
