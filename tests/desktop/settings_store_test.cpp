#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QTemporaryDir>
#include <doctest/doctest.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "adapters/qt/devices/qt_settings_store.h"
#include "tests/desktop/support/config_folder.h"
#include "tests/support/contracts/settings_contract.h"
#include "tests/support/killed_process.h"
#include "tests/support/refused_call.h"
#include "tests/support/scratch_folder.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("The settings keep to what the program counts on") {
  const ConfigFolder config;
  QtSettingsStore store(config.File());
  CheckSettingsContract(store);
}

TEST_CASE("A missing key gives the default, an empty value is a value") {
  const ConfigFolder config;
  QtSettingsStore store(config.File());
  CHECK(store.Read(u"ShowSplash", u"1") == u"1");
  store.Write(u"ShowSplash", u"");
  CHECK(store.Read(u"ShowSplash", u"1").empty());
  CHECK(QtSettingsStore(config.File()).Read(u"ShowSplash", u"1").empty());
}

TEST_CASE("Texts come back as they were stored") {
  const ConfigFolder config;
  for (const Text& text : {Text(u"<NONE>"), Text(u"a, b,c"), Text(u" blanks "), Text(u"@Size(1 2)"),
                           Text(u"\"quoted\"; %x \\ é\u20AC"), Text(u"False"), Text(u"1.0"),
                           Text(u"\r\n\\n"), Text(u"\""), Text(u"[x]=y"), Text(u"# x")}) {
    QtSettingsStore(config.File()).Write(u"BackDrop", text);
    CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"") == text);
  }
}

TEST_CASE("Settings stand in the user's file, in the section Settings") {
  const ConfigFolder config;
  QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
  QFile file(config.Path());
  REQUIRE(file.open(QIODevice::ReadOnly));
  CHECK(file.readAll() == "[Settings]\nBackDrop=DESERT\n");
}

TEST_CASE("The first write of a new user makes the configuration folder") {
  const QTemporaryDir home;
  const QString file = home.filePath("new/.config/Tessara.conf");
  QtSettingsStore(file.toStdString()).Write(u"FirstLoad", u"False");
  CHECK(QtSettingsStore(file.toStdString()).Read(u"FirstLoad", u"True") == u"False");
  CHECK(QFileInfo::exists(file));
}

TEST_CASE("Values that somebody wrote by hand are read as texts") {
  const ConfigFolder config;
  config.Write("# mine\n[Settings]\r\nBackDrop = a,b\n\nFirstLoad=true\nShowSplash=0");
  const QtSettingsStore store(config.File());
  CHECK(store.Read(u"BackDrop", u"") == u"a,b");
  CHECK(store.Read(u"FirstLoad", u"") == u"true");
  CHECK(store.Read(u"ShowSplash", u"") == u"0");
}

TEST_CASE("What else somebody wrote by hand stays when a setting is written") {
  const ConfigFolder config;
  config.Write("# mine\n\n[Settings]\nBackDrop=DESERT\n# blue\nMine=1\n\n[Other]\nBackDrop=x;y\n");
  QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
  CHECK(config.Read() ==
        "# mine\n\n[Settings]\nBackDrop=GRANITE\n# blue\nMine=1\n\n[Other]\nBackDrop=x;y\n");
}

TEST_CASE("Settings that are no key file give the defaults, and are set aside by the next write") {
  for (const char* const broken : {"BackDrop=DESERT\n", "[Settings]\nBackDrop=DESERT\nnonsense\n",
                                   "[Settings", "\xFF\xFE[\n"}) {
    CAPTURE(broken);
    const ConfigFolder config;
    config.Write(broken);
    CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"DEFAULT") == u"DEFAULT");
    CHECK(config.Read() == broken);
    QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
    CHECK(config.Read() == "[Settings]\nBackDrop=GRANITE\n");
    CHECK(config.Names() == QStringList({"Tessara.conf", "Tessara.conf.unreadable"}));
    CHECK(config.Read("Tessara.conf.unreadable") == broken);
  }
}

TEST_CASE("Nothing in a value is interpreted, and one that is no text gives the default") {
  const ConfigFolder config;
  config.Write(
      "[Settings]\nBackDrop=\xFF\nShowSplash=\\x\nFirstLoad=@Variant(\\0\\0)\nMine=1\n"
      "Mixed=\\s\\x\n");
  const QtSettingsStore store(config.File());
  CHECK(store.Read(u"BackDrop", u"DEFAULT") == u"DEFAULT");
  CHECK(store.Read(u"ShowSplash", u"1") == u"\\x");
  CHECK(store.Read(u"FirstLoad", u"True") == u"@Variant(\\0\\0)");
  CHECK(store.Read(u"Mixed", u"") == u"\\s\\x");
  CHECK(store.Read(u"Mine", u"") == u"1");
}

TEST_CASE("A store that can't be written stays as it is, silently") {
  QtSettingsStore("/proc/no such folder/Tessara.conf").Write(u"BackDrop", u"DESERT");
  CHECK_FALSE(QFile::exists("/proc/no such folder"));
}

TEST_CASE("A store whose writer is killed has the old value or the new one, and can be written") {
  // In memory: each write waits for its disk.
  const ConfigFolder config(kInMemory);
  for (int stop = 1, ended = 0; ended == 0; stop += test::kStopsApart) {
    CAPTURE(stop);
    QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
    ended =
        test::KilledAt(stop, [&] { QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE"); })
            ? 0
            : 1;
    const Text kept = QtSettingsStore(config.File()).Read(u"BackDrop", u"");
    CHECK((kept == u"DESERT" || kept == u"GRANITE"));
    // The next start has removed what was left.
    CHECK(config.Names() == QStringList("Tessara.conf"));
  }
}

TEST_CASE("Files beside the settings that no killed writer has left stay") {
  const ConfigFolder config;
  QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
  const QStringList mine{"Tessara.conf.backup", "Tessara.conf.old", "Tessara.confirm"};
  for (const QString& name : mine)
    REQUIRE(QFile::copy(config.Path(), config.folder.filePath(name)));
  const QtSettingsStore next(config.File());
  CHECK(config.Names() == QStringList("Tessara.conf") + mine);
}

TEST_CASE("A writer that is alive keeps its lock and what it writes") {
  const ConfigFolder config;
  QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
  QLockFile lock(config.Path() + ".lock");
  REQUIRE(lock.lock());
  REQUIRE(QFile::copy(config.Path(), config.Path() + ".aBcDeF"));
  const QtSettingsStore next(config.File());
  CHECK(config.Names() ==
        QStringList({"Tessara.conf", "Tessara.conf.aBcDeF", "Tessara.conf.lock"}));
}

TEST_CASE("Whichever call of a write is refused, every setting has its old value or the new one") {
  const ConfigFolder config(kInMemory);
  // Written anew, so that the store has to read it anew.
  const auto prepare = [&] { config.Write("[Settings]\nBackDrop=DESERT\nShowSplash=0\n"); };
  const auto write = [&] {
    QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
    return 0;
  };
  const int calls = RefuseEachInTurn(prepare, write, [&](int result) {
    CHECK(result == 0);
    const QByteArray kept = config.Read();
    const bool old = kept == "[Settings]\nBackDrop=DESERT\nShowSplash=0\n";
    CHECK((old || kept == "[Settings]\nBackDrop=GRANITE\nShowSplash=0\n"));
  });
  CHECK(calls > 20);
  prepare();
  write();
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"") == u"GRANITE");
  CHECK(config.Names() == QStringList("Tessara.conf"));
}

TEST_CASE("Whichever call of a write is refused, what was broken by hand is not lost") {
  const ConfigFolder config(kInMemory);
  const char* const kAside = "Tessara.conf.unreadable";
  const auto prepare = [&] {
    config.Write("nonsense");
    QFile::remove(config.folder.filePath(kAside));
  };
  const auto write = [&] {
    QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
    return 0;
  };
  RefuseEachInTurn(prepare, write, [&](int) {
    CHECK((config.Read() == "nonsense" || config.Read(kAside) == "nonsense"));
  });
}

TEST_CASE("Whichever call of a read is refused, the store gives its value or the default") {
  const ConfigFolder config(kInMemory);
  QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
  const auto read = [&] {
    const Text kept = QtSettingsStore(config.File()).Read(u"BackDrop", u"DEFAULT");
    return kept == u"GRANITE" || kept == u"DEFAULT" ? 0 : 1;
  };
  CHECK(RefuseEachInTurn([] {}, read, [](int result) { CHECK(result == 0); }) > 1);
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"DEFAULT") == u"GRANITE");
}

TEST_CASE("A lock that a killed writer has left empty does not hold up the next one") {
  const ConfigFolder config;
  QFile lock(config.Path() + ".lock");
  REQUIRE(lock.open(QIODevice::WriteOnly));
  lock.close();
  QElapsedTimer timer;
  timer.start();
  QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
  constexpr int kFarBelowTheHalfMinute = 10000;
  CHECK(timer.elapsed() < kFarBelowTheHalfMinute);
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"") == u"DESERT");
  CHECK_FALSE(lock.exists());
}

/// What can be read of settings that somebody has put there, and how a write ends.
void CheckDefaultsAtOnce(const ConfigFolder& config) {
  QElapsedTimer watch;
  watch.start();
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"DEFAULT") == u"DEFAULT");
  QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
  CHECK(watch.elapsed() < 5000);
  CHECK(QFileInfo::exists(config.Path()));
}

TEST_CASE("Settings that are a pipe, a device, a folder or without end give the defaults at once") {
  const auto link = [](const ConfigFolder& config, const char* target) {
    return symlink(target, config.Path().toUtf8()) == 0;
  };
  using Maker = std::function<bool(const ConfigFolder&)>;
  const std::pair<const char*, Maker> kinds[] = {
      {"pipe", [](const auto& config) { return mkfifo(config.Path().toUtf8(), 0600) == 0; }},
      {"folder", [](const auto& config) { return QDir().mkdir(config.Path()); }},
      {"zeros", [&](const auto& config) { return link(config, "/dev/zero"); }},
      {"terminal", [&](const auto& config) { return link(config, "/dev/tty"); }},
      {"1 GB", [](const auto& config) {
         config.Write("[Settings]\nBackDrop=DESERT\n");
         return QFile::resize(config.Path(), 1 << 30);
       }}};
  for (const auto& kind : kinds) {
    CAPTURE(kind.first);
    const ConfigFolder config;
    REQUIRE(kind.second(config));
    CheckDefaultsAtOnce(config);
  }
}

TEST_CASE("A folder in the place of the lock keeps no setting from being written") {
  const ConfigFolder config;
  REQUIRE(QDir().mkpath(config.Path() + ".lock/inside"));
  QElapsedTimer watch;
  watch.start();
  QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
  CHECK(watch.elapsed() < 5000);
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"") == u"GRANITE");
}

TEST_CASE("A writer that never ends is not waited for, and the settings stay") {
  const ConfigFolder config;
  QtSettingsStore(config.File()).Write(u"BackDrop", u"DESERT");
  QLockFile other(config.Path() + ".lock");
  REQUIRE(other.lock());
  QElapsedTimer watch;
  watch.start();
  QtSettingsStore(config.File()).Write(u"BackDrop", u"GRANITE");
  CHECK(watch.elapsed() < 10000);
  CHECK(QtSettingsStore(config.File()).Read(u"BackDrop", u"") == u"DESERT");
}
