#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "deck/file/file_number.h"
#include "tests/support/fakes/memory_files.h"

namespace tessara::test {

inline const Text kTextPath = u"/texts/deck.txt";

/// A disk with one text file, open for sequential reading.
struct TextFile {
  MemoryFiles files;
  FileNumber file{files};

  explicit TextFile(std::string bytes) {
    files.Put(kTextPath, std::move(bytes));
    file.OpenInput(kTextPath);
  }
};

/// The lines as a file of them, each ended by CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string bytes;
  for (const std::string_view line : lines) bytes.append(line).append("\r\n");
  return bytes;
}

}  // namespace tessara::test
