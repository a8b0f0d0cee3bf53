#pragma once

#include "base/text.h"

namespace tessara {

/// A kind of document that the desktop is to open with the program. What the desktop is told of it
/// stands in files of the program's package, and nowhere else. All are paths.
struct DocumentType {
  Text description;  ///< a package of the shared MIME-info database: name, ending, icon's name
  Text entry;        ///< a desktop entry, but for the place of the program
  Text icons;        ///< a folder of icon themes
  Text program;      ///< the executable that opens a document
};

/// The desktop's list of kinds of documents, and of what opens each.
class DocumentTypes {
 public:
  virtual ~DocumentTypes() = default;
  /// Makes the kind known to the user's desktop. What can't be made known is silent.
  virtual void Declare(const DocumentType& type) = 0;
};

}  // namespace tessara
