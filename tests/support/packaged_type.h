#pragma once

#include <filesystem>
#include <string>

#include "machine/document_types.h"

namespace tessara::test {

/// What a file of the package holds.
std::string PackagedFile(const std::string& name);

/// The deck type as the package describes it, of a program in the folder.
DocumentType PackagedType(const std::filesystem::path& program);

/// The content with a line in place of the one of the same key.
std::string WithLine(std::string content, const std::string& line);

}  // namespace tessara::test
