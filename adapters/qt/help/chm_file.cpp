#include "adapters/qt/help/chm_file.h"

#include <QFile>
#include <chm_lib.h>

namespace tessara {

namespace {

constexpr LONGUINT64 kLargestEntry = LONGUINT64{16} * 1024 * 1024;

QByteArray PathInArchive(const QString& entry) {
  return (entry.startsWith(u'/') ? entry : u'/' + entry).toUtf8();
}

}  // namespace

void ChmFile::Closer::operator()(chmFile* archive) const {
  chm_close(archive);
}

std::unique_ptr<ChmFile> ChmFile::Open(const QString& path) {
  chmFile* archive = chm_open(QFile::encodeName(path).constData());
  return archive == nullptr ? nullptr : std::unique_ptr<ChmFile>(new ChmFile(archive));
}

std::optional<QByteArray> ChmFile::Read(const QString& entry) const {
  const QByteArray path = PathInArchive(entry);
  chmUnitInfo info{};
  if (path.endsWith('/') || path.size() > CHM_MAX_PATHLEN ||
      chm_resolve_object(archive_.get(), path.constData(), &info) != CHM_RESOLVE_SUCCESS ||
      info.length > kLargestEntry)
    return std::nullopt;
  QByteArray bytes(static_cast<qsizetype>(info.length), '\0');
  const LONGINT64 read =
      chm_retrieve_object(archive_.get(), &info, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                          static_cast<LONGINT64>(info.length));
  if (read != static_cast<LONGINT64>(info.length)) return std::nullopt;
  return bytes;
}

}  // namespace tessara
