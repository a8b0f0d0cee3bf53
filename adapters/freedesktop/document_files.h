#pragma once

#include <string>

namespace tessara {

/// Name of the desktop entry, and so the application's id on every desktop.
inline constexpr const char* kDesktopEntryName = "tessara.desktop";
/// The type of a deck file.
inline constexpr const char* kDeckMimeType = "application/x-tessara-deck";

/// What the program declares of its document type.
struct DocumentType {
  std::string pattern;      ///< "*.tsr"
  std::string description;  ///< "Tessara File"
  std::string program;      ///< path of the executable
};

/// A package of the shared MIME-info database (freedesktop.org, version 0.21).
[[nodiscard]] std::string MimePackage(const DocumentType& type);

/// A desktop entry (freedesktop.org, version 1.0) that opens one file: `Exec=... %f`.
[[nodiscard]] std::string DesktopEntry(const DocumentType& type);

/// The path as an argument of Exec: in quotes where the rules want them, and escaped.
[[nodiscard]] std::string QuotedForExec(const std::string& path);

}  // namespace tessara
