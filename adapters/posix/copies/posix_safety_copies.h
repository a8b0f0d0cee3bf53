#pragma once

#include <filesystem>
#include <string>

#include "adapters/posix/copies/copies_folder.h"
#include "adapters/posix/copies/unsaved_copy.h"
#include "machine/safety_copies.h"

namespace tessara {

/// Safety copies in a folder of the user's: regular files of at most 10 MB, kept whole and brought
/// to the disk before Keep returns, and decks that no file has. docs/saving.md has the rest.
class PosixSafetyCopies : public SafetyCopies {
 public:
  /// The folder is made with the first copy; an empty path stands for no folder and no copies.
  explicit PosixSafetyCopies(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void Keep(const Text& path, Loss loss) noexcept override;
  Text KeepNotSaved(const Text& fileName, std::string_view deck) noexcept override;
  void KeepUnsaved(const Text& fileName, std::string_view deck) noexcept override;
  void DropUnsaved() noexcept override { unsaved_.Drop(); }
  void LeaveUnsaved() noexcept override { unsaved_.Leave(); }
  std::vector<LeftDeck> TakeLeftDecks() noexcept override;

 private:
  void KeepFile(const std::filesystem::path& path, Loss loss) const;
  void KeepAs(const std::string& name, std::string_view deck) const;
  void TakeLeftDeck(const std::string& name, const std::string& fileName,
                    std::vector<LeftDeck>& decks) const;

  CopiesFolder folder_;
  UnsavedCopy unsaved_{folder_};
};

}  // namespace tessara
