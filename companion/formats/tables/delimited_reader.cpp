#include "companion/formats/tables/delimited_reader.h"

#include <cstdlib>
#include <new>
#include <utility>

#include "companion/cards/card_set.h"
#include "companion/cards/complaints.h"

namespace tessara {

namespace {

/// Blanks belong to the field.
int IsNoBlank(unsigned char) {
  return 0;
}

void* ReallocateField(void* bytes, std::size_t size) {
  return size > kLargestField ? nullptr : std::realloc(bytes, size);
}

bool IsEmptyLine(std::string_view line) {
  return line.find_first_not_of("\r\n") == line.npos;
}

}  // namespace

std::string_view FirstLineOf(std::string_view bytes) {
  const std::size_t end = bytes.find_first_of("\r\n");
  if (end == bytes.npos) return bytes;
  const bool pair = bytes.substr(end).starts_with("\r\n");
  return bytes.substr(0, end + (pair ? 2 : 1));
}

DelimitedReader::DelimitedReader(std::string_view bytes, Dialect dialect, const std::string& file,
                                 std::size_t firstLine)
    : rest_(bytes), dialect_(dialect), file_(file), line_(firstLine) {
  constexpr std::size_t kGrowth = 4096;
  if (csv_init(&parser_, CSV_EMPTY_IS_NULL) != 0) throw std::bad_alloc();
  csv_set_delim(&parser_, static_cast<unsigned char>(dialect.separator));
  csv_set_space_func(&parser_, IsNoBlank);
  csv_set_realloc_func(&parser_, ReallocateField);
  csv_set_blk_size(&parser_, kGrowth);
}

DelimitedReader::~DelimitedReader() {
  csv_free(&parser_);
}

std::optional<DelimitedRecord> DelimitedReader::Next() {
  whole_ = false;
  while (!whole_ && !rest_.empty()) {
    const std::string_view line = FirstLineOf(rest_);
    rest_.remove_prefix(line.size());
    Feed(line);
    ++line_;
  }
  if (!whole_ && !finished_) Finish();
  if (!whole_) return std::nullopt;
  return std::exchange(record_, {});
}

void DelimitedReader::Feed(std::string_view line) {
  const bool begins = record_.line == 0;
  if (begins && IsEmptyLine(line)) return;
  if (begins && dialect_.hasComments && line.starts_with('#')) return;
  if (begins) record_.line = line_;
  while (!line.empty()) {
    line.remove_prefix(Parse(line, CSV_STRICT));
    if (line.empty()) return;
    // A mark stands where none may, or something other than a field's end behind one.
    OpenQuotedField();
    line.remove_prefix(Parse(line.substr(0, 1), 0));
  }
}

/// How many bytes are taken: fewer than there are where the strict rules forbid the next one.
std::size_t DelimitedReader::Parse(std::string_view bytes, unsigned char options) {
  csv_set_opts(&parser_, static_cast<unsigned char>(options | CSV_EMPTY_IS_NULL));
  const std::size_t taken =
      csv_parse(&parser_, bytes.data(), bytes.size(), TakeField, TakeEnd, this);
  RequireGood();
  return taken;
}

/// As spreadsheets do: what stands behind the closing mark belongs to the field, up to its end. The
/// library would go on as within quotation marks, over the ends of fields and records.
void DelimitedReader::OpenQuotedField() {
  if (parser_.quoted == 0) return;
  parser_.quoted = 0;
  --parser_.entry_pos;
  record_.hasStrayMark = true;
}

void DelimitedReader::Finish() {
  finished_ = true;
  if (record_.line == 0) return;
  csv_set_opts(&parser_, CSV_EMPTY_IS_NULL | CSV_STRICT | CSV_STRICT_FINI);
  endsInQuotes_ = csv_fini(&parser_, TakeField, TakeEnd, this) != 0;
  if (!endsInQuotes_) return;
  csv_set_opts(&parser_, CSV_EMPTY_IS_NULL);
  csv_fini(&parser_, TakeField, TakeEnd, this);
}

void DelimitedReader::RequireGood() {
  if (csv_error(&parser_) == CSV_ENOMEM)
    throw Refused({&file_, record_.line}, "a field is larger than 1 MB");
}

void DelimitedReader::TakeField(void* bytes, std::size_t size, void* self) {
  DelimitedRecord& record = static_cast<DelimitedReader*>(self)->record_;
  record.isBlank = record.isBlank && bytes == nullptr;
  ++record.fieldCount;
  if (record.fieldCount > kMostFields) return;
  record.fields.emplace_back(static_cast<const char*>(bytes == nullptr ? "" : bytes), size);
}

void DelimitedReader::TakeEnd(int, void* self) {
  static_cast<DelimitedReader*>(self)->whole_ = true;
}

}  // namespace tessara
