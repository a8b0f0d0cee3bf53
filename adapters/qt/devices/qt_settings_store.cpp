#include "adapters/qt/devices/qt_settings_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <chrono>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <utility>

#include "adapters/posix/file_lock.h"
#include "adapters/posix/system_call.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

const QLatin1String kLockEnding(".lock");

/// New settings that never took the old ones' place, and are no older than the lock they were
/// written under.
void RemoveUnfinished(const QFileInfo& settings, const QDateTime& locked) {
  const QString unfinished = settings.fileName() + QLatin1String(".??????");
  for (const QFileInfo& file : settings.dir().entryInfoList({unfinished}, QDir::Files)) {
    if (file.lastModified() >= locked) QFile::remove(file.filePath());
  }
}

/// A writer that was killed leaves its lock behind, and perhaps what it was writing. Where it had
/// not come to put its number into the lock, the next one would wait for half a minute.
void RemoveLeftovers(const QString& settingsFile) {
  const QString lock = settingsFile + kLockEnding;
  const Descriptor file(
      open(QFile::encodeName(lock).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  // The lock of a writer that is alive can't be had.
  if (file.Get() == kFailed || !LockFile(file.Get())) return;
  RemoveUnfinished(QFileInfo(settingsFile), QFileInfo(lock).lastModified());
  QFile::remove(lock);
}

bool IsRegularFile(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

/// Empty where there is no file; nothing where there is one that can't be read, or that is no file
/// of settings: a pipe, a device or a folder, or one without end. Waits for none of them.
std::optional<QByteArray> BytesOf(const QString& path) {
  constexpr qint64 kMost = 1 << 20;  // bytes; ours have less than 1000
  const Descriptor opened(
      open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (opened.Get() == kFailed) {
    return QFile::exists(path) ? std::nullopt : std::optional(QByteArray());
  }
  QFile file;
  if (!IsRegularFile(opened.Get()) || !file.open(opened.Get(), QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.read(kMost + 1);
  const bool whole = file.error() == QFile::NoError && bytes.size() <= kMost;
  return whole ? std::optional(bytes) : std::nullopt;
}

/// Keeps other writers away for its life, if they are Tessara's.
class WriterLock {
 public:
  explicit WriterLock(const QString& settingsFile) : lock_(settingsFile + kLockEnding) {
    RemoveLeftovers(settingsFile);
    // What else stands in its place, a folder say, is nobody's lock and would never go.
    const QFileInfo place(settingsFile + kLockEnding);
    const bool blocked = place.exists() && !place.isFile();
    free_ = blocked || lock_.tryLock(kPatience);
  }
  /// False where another writer does not come to its end, or no lock can be made.
  [[nodiscard]] bool Free() const { return free_; }

 private:
  static constexpr std::chrono::seconds kPatience{1};

  QLockFile lock_;
  bool free_ = false;
};

/// What somebody has broken by hand keeps its bytes, under a name of its own.
[[nodiscard]] bool SetAside(const QString& path) {
  const QString aside = path + QLatin1String(".unreadable");
  QFile::remove(aside);
  return QFile::rename(path, aside);
}

/// The file then has all the bytes, or what it had before where that fails.
void Replace(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) return;
  // By itself, commit would not notice that the last bytes can't be written.
  if (file.flush()) file.commit();
}

}  // namespace

QtSettingsStore::QtSettingsStore(const std::filesystem::path& file)
    : path_(QFile::decodeName(file.c_str())) {
  RemoveLeftovers(path_);
  std::optional<SettingsFile> stored = SettingsFile::Parse(BytesOf(path_).value_or(QByteArray()));
  if (stored) known_ = std::move(*stored);
}

Text QtSettingsStore::Read(const Text& key, const Text& defaultValue) const {
  const std::optional<QString> found = known_.Find(ToQString(key));
  return found ? FromQString(*found) : defaultValue;
}

void QtSettingsStore::Write(const Text& key, const Text& value) {
  known_.Set(ToQString(key), ToQString(value));
  // The lock has to stand somewhere: a new user has no configuration folder yet.
  QDir().mkpath(QFileInfo(path_).path());
  const WriterLock lock(path_);
  if (!lock.Free()) return;
  // What somebody else has written meanwhile stays; what can't be read would be lost.
  const std::optional<QByteArray> bytes = BytesOf(path_);
  if (!bytes) return;
  std::optional<SettingsFile> stored = SettingsFile::Parse(*bytes);
  if (!stored) {
    if (!SetAside(path_)) return;
    stored.emplace();
  }
  stored->Set(ToQString(key), ToQString(value));
  Replace(path_, stored->Bytes());
}

}  // namespace tessara
