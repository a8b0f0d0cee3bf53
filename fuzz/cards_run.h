#pragma once

#include <cstdint>
#include <string>

#include "companion/cards/complaints.h"
#include "companion/formats/file_format.h"
#include "fuzz/require.h"

namespace tessara::fuzz {

/// Counts what could not be kept.
class CountedLosses : public Losses {
 public:
  void Tell(const Place&, const std::string&) override { ++count; }
  int count = 0;
};

class StringSink : public ByteSink {
 public:
  void Write(std::string_view bytes) override { written += bytes; }
  std::string written;
};

inline void RequireSame(const DeckRecord& one, const DeckRecord& other) {
  Require(one.cardType == other.cardType && one.text == other.text);
  Require(one.shortFields == other.shortFields && one.answer == other.answer);
  Require(one.longText == other.longText);
}

/// Reads the fuzzer's bytes, or refuses them in words; what was read comes back from a file of the
/// same format, where nothing was told.
inline void ReadAndWriteAgain(FileFormat format, const std::uint8_t* data, std::size_t size) {
  const CodePage& codePage = CodePage::Western();
  Source source{"file", std::string(reinterpret_cast<const char*>(data), size)};
  try {
    CountedLosses read;
    const CardSet set = ReadCards(format, source, {codePage, read});
    if (set.cards.empty()) return;
    CountedLosses lost;
    StringSink sink;
    WriteCards(format, {set.kind, set.info, set.cards}, sink, {codePage, lost});
    Source written{"written", sink.written};
    const CardSet again = ReadCards(format, written, {codePage, lost});
    if (lost.count > 0) return;
    Require(again.kind == set.kind && again.cards.size() == set.cards.size());
    for (std::size_t at = 0; at < set.cards.size(); ++at)
      RequireSame(again.cards[at].record, set.cards[at].record);
  } catch (const Refused&) {
    return;
  }
}

}  // namespace tessara::fuzz
