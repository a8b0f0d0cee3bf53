#include <algorithm>
#include <pugixml.hpp>
#include <string>
#include <utility>

#include "base/characters.h"
#include "base/text.h"
#include "base/utf8.h"
#include "companion/cards/complaints.h"
#include "companion/cards/text_form.h"
#include "companion/formats/kvtml/kvtml_format.h"
#include "companion/formats/kvtml/tag_lines.h"

namespace tessara {

namespace {

/// Each takes some 130 bytes of memory, an attribute a third of that.
constexpr std::ptrdiff_t kMostTags = 400'000;

std::ptrdiff_t CountOfTags(const std::string& bytes) {
  constexpr std::ptrdiff_t kAttributesOfTag = 3;
  return std::count(bytes.begin(), bytes.end(), '<') +
         std::count(bytes.begin(), bytes.end(), '=') / kAttributesOfTag;
}

/// The ids of the languages that make the sides; empty where there is no second one.
struct SideLanguages {
  std::string front;
  std::string back;
};

std::size_t LineOfOffset(std::string_view bytes, std::ptrdiff_t offset) {
  const auto end = std::min(offset, static_cast<std::ptrdiff_t>(bytes.size()));
  return static_cast<std::size_t>(std::count(bytes.begin(), bytes.begin() + end, '\n')) + 1;
}

class KvtmlReader {
 public:
  KvtmlReader(Source& source, const Conversion& conversion)
      : source_(source),
        losses_(conversion.losses),
        codePage_(conversion.codePage),
        lines_(source.bytes, "<entry") {}

  CardSet Read() {
    Parse();
    const pugi::xml_node kvtml = document_.child("kvtml");
    if (!std::string_view(kvtml.attribute("version").value()).starts_with("2"))
      throw Refused({&source_.name}, "it is no vocabulary file of version 2");
    TakeLanguages(kvtml.child("identifiers"));
    TakeInformation(kvtml.child("information"));
    for (const pugi::xml_node& entry : kvtml.child("entries").children("entry")) TakeEntry(entry);
    return std::move(set_);
  }

 private:
  void Parse() {
    std::string& bytes = source_.bytes;
    if (CountOfTags(bytes) > kMostTags)
      throw Refused({&source_.name}, "it has more than " + std::to_string(kMostTags) + " tags");
    constexpr unsigned kOptions =
        pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata;
    const pugi::xml_parse_result parsed =
        document_.load_buffer_inplace(bytes.data(), bytes.size(), kOptions);
    if (!parsed) {
      // Of the buffer only line ends before the error count, which are what they were.
      throw Refused({&source_.name, LineOfOffset(bytes, parsed.offset)},
                    std::string("it is no XML: ") + parsed.description());
    }
  }

  /// In one of its nodes or over several. Files are about that have texts of the code page among
  /// those of UTF-8.
  [[nodiscard]] Text TextIn(const pugi::xml_node& element) const {
    std::string bytes;
    for (const pugi::xml_node& child : element.children()) bytes += child.value();
    const bool isUtf8 = Utf8Length(bytes) == bytes.size();
    return WithLineBreaks(isUtf8 ? FromUtf8(bytes) : codePage_.Decode(bytes));
  }

  void TakeLanguages(const pugi::xml_node& identifiers) {
    std::size_t count = 0;
    for (const pugi::xml_node& identifier : identifiers.children("identifier")) {
      if (count == 0) languages_.front = identifier.attribute("id").value();
      if (count == 1) languages_.back = identifier.attribute("id").value();
      ++count;
    }
    const Place place{&source_.name};
    if (count == 0) throw Refused(place, "it names no languages");
    if (count == 1) losses_.Tell(place, "it has one language: the backs are empty");
    if (count > 2) losses_.Tell(place, "of its languages the first two are kept");
    if (count == 1) languages_.back = "no language";
  }

  void TakeInformation(const pugi::xml_node& information) {
    set_.info = {TextIn(information.child("title")), TextIn(information.child("author")),
                 TextIn(information.child("comment")),
                 DeckDateOf(TextIn(information.child("date")))};
  }

  void TakeEntry(const pugi::xml_node& entry) {
    SourceCard card;
    card.place = {&source_.name, lines_.LineOf(entry.offset_debug()), set_.cards.size() + 1};
    card.record.cardType = LetterOf(CardType::kText);
    card.record.text = SideOf(entry, languages_.front, card.place);
    card.record.longText = SideOf(entry, languages_.back, card.place);
    AddCard(set_, std::move(card));
  }

  [[nodiscard]] Text SideOf(const pugi::xml_node& entry, const std::string& language,
                            const Place& place) const {
    Text text =
        TextIn(entry.find_child_by_attribute("translation", "id", language.c_str()).child("text"));
    if (text.size() > kLargestField) throw Refused(place, "a field is larger than 1 MB");
    return text;
  }

  Source& source_;
  Losses& losses_;
  const CodePage& codePage_;
  TagLines lines_;
  pugi::xml_document document_;
  SideLanguages languages_;
  CardSet set_;
};

}  // namespace

CardSet ReadKvtml(Source& source, const Conversion& conversion) {
  return KvtmlReader(source, conversion).Read();
}

}  // namespace tessara
