#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "companion/formats/source_and_sink.h"

namespace tessara {

/// Writes records of separated fields in UTF-8. A field stands in quotation marks where it holds
/// the separator, a quotation mark or a line break, or begins with "#", or has blanks at its ends.
class DelimitedWriter {
 public:
  DelimitedWriter(ByteSink& sink, std::string_view separator, std::string_view lineEnd)
      : sink_(sink), separator_(separator), lineEnd_(lineEnd) {}

  void WriteNames(const std::vector<const char*>& names) const;
  void WriteRecord(const std::vector<Text>& fields) const;

 private:
  [[nodiscard]] bool NeedsQuotes(std::string_view field) const;

  ByteSink& sink_;
  std::string_view separator_;
  std::string_view lineEnd_;
};

}  // namespace tessara
