#pragma once

#include <filesystem>
#include <memory>

#include "adapters/libreoffice/cleaner.h"

namespace tessara {

/// A folder for one run of the server: its profile and its temporary files. Gone with the object or
/// the program, and with it the sockets that the server has made elsewhere; what a killed machine
/// has left behind goes when the next one is made.
class PrivateFolder {
 public:
  /// Raises error 440 where none can be made.
  PrivateFolder();

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// A file that the server keeps open while it lives: nothing is removed before it is closed.
  [[nodiscard]] int SignOfLife() const { return cleaner_->SignOfLife(); }

 private:
  std::filesystem::path path_;
  std::unique_ptr<Cleaner> cleaner_;
};

}  // namespace tessara
