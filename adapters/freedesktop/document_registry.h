#pragma once

#include <filesystem>
#include <functional>
#include <map>

#include "machine/class_registry.h"

namespace tessara {

/// The registry of document classes as a freedesktop system has it: a MIME package, a desktop
/// entry and icons below the user's data folder, made known by the desktop's own tools. What is
/// declared is collected, and written by Publish.
class DocumentRegistry : public ClassRegistry {
 public:
  struct Folders {
    std::filesystem::path userData;  ///< $XDG_DATA_HOME
    std::filesystem::path program;   ///< holds the executable and "icons"
    std::string executable;          ///< name of the executable in it
  };

  /// Makes the written files known to the desktop; must return at once.
  using Tools = std::function<void(const std::filesystem::path& userData)>;

  DocumentRegistry(Folders folders, Tools tools)
      : folders_(std::move(folders)), tools_(std::move(tools)) {}

  int CreateClassKey(const Text& key) override;
  int SetClassValue(const Text& key, const Text& valueName, const Text& value) override;
  /// Writes the files, then starts the tools and does not wait for them.
  void Publish() override;

 private:
  void WriteFiles() const;
  [[nodiscard]] std::string DefaultValue(const Text& key) const;

  Folders folders_;
  Tools tools_;
  std::map<Text, Text> defaults_;
};

}  // namespace tessara
