#pragma once

#include <QStringList>
#include <set>
#include <string>

#include "tests/support/scratch_folder.h"

namespace tessara::test {

/// The files of a user: decks of both kinds, empty and full ones, broken ones, and texts to import.
/// Whatever the user names in a dialog lies in one folder, which goes with it.
class UserFiles {
 public:
  UserFiles();

  [[nodiscard]] const ScratchFolder& Folder() const { return folder_; }
  /// Names of decks that load, and of decks that don't.
  [[nodiscard]] static const QStringList& GoodDecks();
  [[nodiscard]] static const QStringList& BrokenDecks();
  [[nodiscard]] static const QStringList& Texts();
  /// Names that a save can be given; not all of them can be written.
  [[nodiscard]] static const QStringList& Targets();
  [[nodiscard]] QString PathOf(const QString& name) const;
  /// Where the program keeps copies.
  [[nodiscard]] std::filesystem::path Copies() const;
  /// The cards of all decks and copies that are on the disk, each as its record without its number.
  [[nodiscard]] std::set<std::string> CardsOnDisk() const;

 private:
  void WriteDecks() const;
  void WriteTexts() const;

  // In memory: a save waits for its disk.
  ScratchFolder folder_{kInMemory};
};

}  // namespace tessara::test
