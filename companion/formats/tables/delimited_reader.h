#pragma once

#include <cstddef>
#include <csv.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/cards/complaints.h"

namespace tessara {

/// One record of a file of separated fields.
struct DelimitedRecord {
  std::size_t line = 0;             ///< where it begins, from 1
  std::vector<std::string> fields;  ///< the first kMostFields of them
  std::size_t fieldCount = 0;
  bool isBlank = true;        ///< nothing stands in it but separators, no quotation marks either
  bool hasStrayMark = false;  ///< a quotation mark that was to end its field did not, and is gone
};

inline constexpr std::size_t kMostFields = 256;

/// Reads the records of RFC 4180, with any separator of one byte; lines end in CR LF, LF or CR.
/// Empty lines are no records.
class DelimitedReader {
 public:
  struct Dialect {
    char separator = ',';
    bool hasComments = false;  ///< a record that begins with "#" is a comment
  };

  /// `file` names the bytes in a refusal. Line `firstLine` is the first one.
  DelimitedReader(std::string_view bytes, Dialect dialect, const std::string& file,
                  std::size_t firstLine = 1);
  DelimitedReader(const DelimitedReader&) = delete;
  DelimitedReader& operator=(const DelimitedReader&) = delete;
  ~DelimitedReader();

  /// Nothing at the end. Raises Refused for a field over 1 MB.
  [[nodiscard]] std::optional<DelimitedRecord> Next();
  /// True where the end of the file stands within quotation marks.
  [[nodiscard]] bool EndsInQuotes() const { return endsInQuotes_; }

 private:
  void Feed(std::string_view line);
  [[nodiscard]] std::size_t Parse(std::string_view bytes, unsigned char options);
  void OpenQuotedField();
  void Finish();
  void RequireGood();
  static void TakeField(void* bytes, std::size_t size, void* self);
  static void TakeEnd(int terminator, void* self);

  std::string_view rest_;
  Dialect dialect_;
  const std::string& file_;
  std::size_t line_;
  csv_parser parser_{};
  DelimitedRecord record_;  ///< its line is 0 between records
  bool whole_ = false;
  bool finished_ = false;
  bool endsInQuotes_ = false;
};

/// The line at the front with its end, which is CR LF, LF or CR.
[[nodiscard]] std::string_view FirstLineOf(std::string_view bytes);

}  // namespace tessara
