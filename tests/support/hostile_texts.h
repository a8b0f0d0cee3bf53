#pragma once

#include <string>

#include "base/code_page.h"
#include "base/text.h"
#include "deck/file/deck_file.h"

namespace tessara::test {

/// Texts that some program somewhere would take for more than a text. Short enough for any field
/// of a deck.
inline const Text kHostileTexts[] = {
    u"<b>bold</b><br><img src='x.png'>",
    u"<a href=\"file:///etc/passwd\">link</a>",
    u"&lt;i&gt; &amp; &#65; && &File",
    u"<!DOCTYPE html><html><style>*{}</style>",
    u"=HYPERLINK(\"http://x.example\";\"y\")",
    u"=cmd|' /C calc'!A0 +1 -1 @SUM(A1)",
    u"%s%n%x %1 %L1 {0} ${HOME} $(id) `id`",
    u"../../etc/passwd",
    u"/dev/zero",
    u"file:///etc/passwd http://x.example",
    u"'; DROP TABLE cards; --",
    u"[*] \\n \\u0041 {\\rtf1 \\b x}",
};

/// A deck of two cards that says the text in every field.
inline std::string DeckSaying(const Text& text, TextView type) {
  const Text answer = type == u"M" ? u"A" : u"";
  std::string bytes;
  for (const DeckRecord& record :
       {DeckRecord{u"I", text, 0, {text, text, text, text}, u"", text},
        DeckRecord{Text(type), text, 1, {text, text, text, text}, answer, text},
        DeckRecord{Text(type), text, 2, {text, text, text, text}, answer, text},
        DeckRecord{u"X", u"", 0, {}, u"", u""}}) {
    const RecordBytes encoded = EncodeRecord(record, CodePage::Western());
    bytes.append(encoded.begin(), encoded.end());
  }
  return bytes;
}

/// Such texts in names of files, where "/" can't be.
inline const Text kHostileNames[] = {
    u"<b>bold<b>.tsr", u"&File && more.tsr", u"%s%n %1 {0}.tsr", u"$(id) `id` $HOME.tsr",
    u"=1+1.tsr",       u"[x] [*].tsr",       u"-rf --help.tsr",
};

}  // namespace tessara::test
