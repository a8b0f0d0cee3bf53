#pragma once

#include "platform/text.h"

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

/// The same in names of files, where "/" can't be.
inline const Text kHostileNames[] = {
    u"<b>bold<b>.tsr", u"&File && more.tsr", u"%s%n %1 {0}.tsr", u"$(id) `id` $HOME.tsr",
    u"=1+1.tsr",       u"[x] [*].tsr",       u"-rf --help.tsr",
};

}  // namespace tessara::test
