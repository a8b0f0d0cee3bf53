#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "machine/document_types.h"

namespace tessara {

/// The kinds of documents of one user: description, desktop entry and icons below the user's data
/// folder.
class UserDocumentTypes : public DocumentTypes {
 public:
  /// What was declared: where, by which entry, for which types of documents.
  struct Declared {
    std::filesystem::path userData;
    std::string entry;          ///< its file's name
    std::string documentTypes;  ///< each with a ";" behind it
  };
  /// Makes the written files known to the desktop; must return at once.
  using Tools = std::function<void(const Declared& declared)>;

  /// The folder is $XDG_DATA_HOME; with an empty one nothing is declared.
  UserDocumentTypes(std::filesystem::path userData, Tools tools)
      : userData_(std::move(userData)), tools_(std::move(tools)) {}

  /// Writes the files, then starts the tools and does not wait for them.
  void Declare(const DocumentType& type) override;

 private:
  [[nodiscard]] Declared WriteFiles(const DocumentType& type) const;

  std::filesystem::path userData_;
  Tools tools_;
};

/// Starts the desktop's own tools that make new types, entries and icons known, and makes the
/// entry's program the default one for its documents. Returns at once; a missing tool is silent.
void StartUpdateTools(const UserDocumentTypes::Declared& declared);

}  // namespace tessara
