#pragma once

#include "adapters/freedesktop/user_document_types.h"

namespace tessara {

/// Starts the desktop's own tools that make new types, entries and icons known, and makes the
/// entry's program the default one for its documents. Returns at once; a missing tool is silent.
void StartUpdateTools(const UserDocumentTypes::Declared& declared);

}  // namespace tessara
