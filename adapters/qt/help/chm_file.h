#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

struct chmFile;

namespace tessara {

/// A compiled help file, open for reading.
class ChmFile {
 public:
  /// Null where the file is missing or is no compiled help file.
  [[nodiscard]] static std::unique_ptr<ChmFile> Open(const QString& path);

  /// The bytes of an entry, named by its path with or without the leading slash. Nothing where it
  /// is missing, cannot be unpacked or claims to be larger than any help page.
  [[nodiscard]] std::optional<QByteArray> Read(const QString& entry) const;

 private:
  struct Closer {
    void operator()(chmFile* archive) const;
  };
  explicit ChmFile(chmFile* archive) : archive_(archive) {}

  std::unique_ptr<chmFile, Closer> archive_;
};

}  // namespace tessara
