#include <array>
#include <pugixml.hpp>
#include <string>

#include "base/text.h"
#include "companion/cards/complaints.h"
#include "companion/cards/text_form.h"
#include "companion/formats/kvtml/kvtml_format.h"

namespace tessara {

namespace {

/// A sink as the library writes to one.
class SinkWriter : public pugi::xml_writer {
 public:
  explicit SinkWriter(ByteSink& sink) : sink_(sink) {}
  void write(const void* data, std::size_t size) override {
    sink_.Write({static_cast<const char*>(data), size});
  }

 private:
  ByteSink& sink_;
};

/// By XML 1.0; the halves of a pair are looked at elsewhere.
bool IsCharacterOfXml(char16_t character) {
  const bool control = character < u' ' && character != u'\t' && character != kLineFeed &&
                       character != kCarriageReturn;
  return !control && character != 0xFFFE && character != 0xFFFF;
}

class KvtmlWriter {
 public:
  explicit KvtmlWriter(Losses& losses) : losses_(losses) {}

  void Write(const CardsToWrite& deck, ByteSink& sink) {
    AddHead(deck);
    pugi::xml_node entries = kvtml_.append_child("entries");
    std::size_t id = 0;
    for (const SourceCard& card : deck.cards) AddEntry(entries.append_child("entry"), id++, card);
    SinkWriter writer(sink);
    document_.save(writer, "  ", pugi::format_default, pugi::encoding_utf8);
  }

 private:
  void AddHead(const CardsToWrite& deck) {
    pugi::xml_node declaration = document_.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    document_.append_child(pugi::node_doctype)
        .set_value(R"(kvtml PUBLIC "kvtml2.dtd" "http://edu.kde.org/kvtml/kvtml2.dtd")");
    kvtml_ = document_.append_child("kvtml");
    kvtml_.append_attribute("version") = "2.0";
    AddInformation(deck);
    pugi::xml_node identifiers = kvtml_.append_child("identifiers");
    AddLanguage(identifiers, "0", "Front");
    AddLanguage(identifiers, "1", "Back");
  }

  void AddInformation(const CardsToWrite& deck) {
    const Place place{deck.cards.front().place.file};
    pugi::xml_node information = kvtml_.append_child("information");
    AddText(information, "generator", u"tessara-deck", place);
    AddText(information, "title", deck.info.title, place);
    AddText(information, "author", deck.info.author, place);
    AddText(information, "comment", deck.info.description, place);
    AddText(information, "date", KvtmlDateOf(deck.info.date), place);
  }

  static void AddLanguage(pugi::xml_node& identifiers, const char* id, const char* name) {
    pugi::xml_node identifier = identifiers.append_child("identifier");
    identifier.append_attribute("id") = id;
    identifier.append_child("name").text() = name;
  }

  void AddEntry(pugi::xml_node entry, std::size_t id, const SourceCard& card) {
    TellOtherKind(card, kStandardDeck, losses_);
    entry.append_attribute("id") = std::to_string(id).c_str();
    AddSide(entry, "0", card.record.text, card.place);
    AddSide(entry, "1", card.record.longText, card.place);
  }

  void AddSide(pugi::xml_node& entry, const char* id, const Text& text, const Place& place) {
    pugi::xml_node translation = entry.append_child("translation");
    translation.append_attribute("id") = id;
    AddText(translation, "text", text, place);
  }

  void AddText(pugi::xml_node& parent, const char* name, const Text& text, const Place& place) {
    parent.append_child(name).text() = WellFormedUtf8(Kept(text, place)).c_str();
  }

  /// Line ends are LF in XML, and it has no control characters.
  [[nodiscard]] Text Kept(const Text& text, const Place& place) const {
    constexpr char16_t kReplacement = 0xFFFD;
    if (HasLoneBreak(text))
      losses_.Tell(place, "a carriage return or line feed of its own becomes a line break");
    Text kept;
    bool hasControls = false;
    for (const char16_t character : WithLineBreaks(text)) {
      if (character == kCarriageReturn) continue;
      const bool good = IsCharacterOfXml(character);
      hasControls = hasControls || !good;
      kept += good ? character : kReplacement;
    }
    if (!IsWellFormed(kept)) losses_.Tell(place, "halves of characters are not kept");
    if (hasControls) losses_.Tell(place, "control characters are not kept");
    return kept;
  }

  Losses& losses_;
  pugi::xml_document document_;
  pugi::xml_node kvtml_;
};

}  // namespace

void WriteKvtml(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion) {
  if (deck.kind != kStandardDeck) {
    const Place place{deck.cards.front().place.file};
    throw Refused(place, "a vocabulary file holds no questions");
  }
  KvtmlWriter(conversion.losses).Write(deck, sink);
}

}  // namespace tessara
