#include "adapters/freedesktop/document_files.h"

#include <string_view>

namespace tessara {

namespace {

std::string EscapedForXml(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

/// An argument of Exec with one of these stands in quotes: what the rules reserve, and any break
/// of the line.
constexpr std::string_view kReserved = " \t\n\r\"'\\<>~|&;$*?#()`";

/// A value of a desktop entry that is a plain text.
std::string EscapedForEntry(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '\\':
        escaped += R"(\\)";
        break;
      case '\n':
        escaped += R"(\n)";
        break;
      case '\r':
        escaped += R"(\r)";
        break;
      case '\t':
        escaped += R"(\t)";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

}  // namespace

std::string MimePackage(const DocumentType& type) {
  return std::string(R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type=")") +
         kDeckMimeType + R"(">
    <comment>)" +
         EscapedForXml(type.description) + R"(</comment>
    <glob pattern=")" +
         EscapedForXml(type.pattern) + R"("/>
    <icon name="application-x-tessara-deck"/>
  </mime-type>
</mime-info>
)";
}

std::string QuotedForExec(const std::string& path) {
  // Without need there are no quotes: some of those who open files do not read them.
  const std::string quote = path.find_first_of(kReserved) == std::string::npos ? "" : "\"";
  // Two layers: the entry's value doubles a backslash and holds no break of the line, the quoted
  // argument escapes four characters.
  std::string quoted = quote;
  for (const char c : path) {
    switch (c) {
      case '\\':
        quoted += R"(\\\\)";
        break;
      case '"':
      case '`':
      case '$':
        quoted += R"(\\)";
        quoted += c;
        break;
      case '%':
        quoted += "%%";
        break;
      case '\n':
        quoted += R"(\n)";
        break;
      case '\r':
        quoted += R"(\r)";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + quote;
}

std::string DesktopEntry(const DocumentType& type) {
  return std::string(
             "[Desktop Entry]\n"
             "Type=Application\n"
             "Version=1.0\n"
             "Name=Tessara\n"
             "GenericName=Flash Cards\n"
             "Comment=Learn with flash cards on screen and on paper\n"
             "Icon=tessara\n"
             "Exec=") +
         QuotedForExec(type.program) + " %f\n" +
         // Without the program the entry is none.
         "TryExec=" + EscapedForEntry(type.program) + "\n" + "MimeType=" + kDeckMimeType +
         ";\n"
         "Categories=Education;\n"
         "Keywords=flashcards;cards;learning;study;quiz;test;questions;vocabulary;printing;\n"
         "Terminal=false\n"
         "StartupWMClass=tessara\n";
}

}  // namespace tessara
