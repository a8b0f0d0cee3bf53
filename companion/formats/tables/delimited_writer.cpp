#include "companion/formats/tables/delimited_writer.h"

#include <algorithm>
#include <csv.h>

#include "companion/cards/text_form.h"
#include "import/text_traits.h"

namespace tessara {

namespace {

std::string Quoted(std::string_view field) {
  std::string quoted(field.size() * 2 + 2, '\0');
  quoted.resize(csv_write(quoted.data(), quoted.size(), field.data(), field.size()));
  return quoted;
}

}  // namespace

bool DelimitedWriter::NeedsQuotes(std::string_view field) const {
  const bool breaks = field.find_first_of("\"\r\n") != field.npos;
  return breaks || field.find(separator_) != field.npos || field.starts_with('#') ||
         field.starts_with(' ') || field.ends_with(' ') || field.starts_with(kByteOrderMark);
}

void DelimitedWriter::WriteNames(const std::vector<const char*>& names) const {
  std::string line;
  for (const char* name : names) line += (line.empty() ? "" : std::string(separator_)) + name;
  sink_.Write(line + std::string(lineEnd_));
}

void DelimitedWriter::WriteRecord(const std::vector<Text>& fields) const {
  // Without quotation marks it would be an empty line, or a line of nothing.
  const bool blank =
      std::all_of(fields.begin(), fields.end(), [](const Text& field) { return field.empty(); });
  std::string line;
  for (std::size_t at = 0; at < fields.size(); ++at) {
    if (at > 0) line += separator_;
    const std::string field = WellFormedUtf8(fields[at]);
    line += blank || NeedsQuotes(field) ? Quoted(field) : field;
  }
  sink_.Write(line + std::string(lineEnd_));
}

}  // namespace tessara
