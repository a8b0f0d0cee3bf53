#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <doctest/doctest.h>

#include "platform/qt/qt_settings_store.h"
#include "tests/desktop/config_folder.h"
#include "tests/support/killed_process.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE("A missing key gives the default, an empty value is a value") {
  const ConfigFolder config;
  QtSettingsStore store;
  CHECK(store.Read(u"ShowSplash", u"1") == u"1");
  store.Write(u"ShowSplash", u"");
  CHECK(store.Read(u"ShowSplash", u"1").empty());
  CHECK(QtSettingsStore().Read(u"ShowSplash", u"1").empty());
}

TEST_CASE("Texts come back as they were stored") {
  const ConfigFolder config;
  for (const Text& text : {Text(u"<NONE>"), Text(u"a, b,c"), Text(u" blanks "), Text(u"@Size(1 2)"),
                           Text(u"\"quoted\"; %x \\ é\u20AC"), Text(u"False"), Text(u"1.0")}) {
    QtSettingsStore().Write(u"BackDrop", text);
    CHECK(QtSettingsStore().Read(u"BackDrop", u"") == text);
  }
}

TEST_CASE("Settings stand in the user's file, in the section Settings") {
  const ConfigFolder config;
  QtSettingsStore().Write(u"BackDrop", u"DESERT");
  QFile file(config.Path());
  REQUIRE(file.open(QIODevice::ReadOnly));
  CHECK(file.readAll() == "[Settings]\nBackDrop=DESERT\n");
}

TEST_CASE("Values that somebody wrote by hand are read as texts") {
  const ConfigFolder config;
  config.Write("[Settings]\nBackDrop=a,b\nFirstLoad=true\nShowSplash=0\n");
  const QtSettingsStore store;
  CHECK(store.Read(u"BackDrop", u"") == u"a,b");
  CHECK(store.Read(u"FirstLoad", u"") == u"true");
  CHECK(store.Read(u"ShowSplash", u"") == u"0");
}

TEST_CASE("A store that can't be written stays as it is, silently") {
  const ConfigFolder config;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/proc/no such folder");
  QtSettingsStore().Write(u"BackDrop", u"DESERT");
  CHECK_FALSE(QFile::exists("/proc/no such folder"));
}

TEST_CASE("A store whose writer is killed has the old value or the new one, and can be written") {
  // In memory: each write waits for its disk.
  const ConfigFolder config("/dev/shm/");
  for (int stop = 1, ended = 0; ended == 0; ++stop) {
    CAPTURE(stop);
    QtSettingsStore().Write(u"BackDrop", u"DESERT");
    ended = test::KilledAt(stop, [] { QtSettingsStore().Write(u"BackDrop", u"GRANITE"); }) ? 0 : 1;
    const Text kept = QtSettingsStore().Read(u"BackDrop", u"");
    CHECK((kept == u"DESERT" || kept == u"GRANITE"));
  }
  QtSettingsStore().Write(u"BackDrop", u"STUCCO");
  CHECK(QtSettingsStore().Read(u"BackDrop", u"") == u"STUCCO");
  CHECK_FALSE(QFile::exists(config.Path() + ".lock"));
}

TEST_CASE("A lock that a killed writer has left empty does not hold up the next one") {
  const ConfigFolder config;
  QFile lock(config.Path() + ".lock");
  REQUIRE(lock.open(QIODevice::WriteOnly));
  lock.close();
  QElapsedTimer timer;
  timer.start();
  QtSettingsStore().Write(u"BackDrop", u"DESERT");
  constexpr int kFarBelowTheHalfMinute = 10000;
  CHECK(timer.elapsed() < kFarBelowTheHalfMinute);
  CHECK(QtSettingsStore().Read(u"BackDrop", u"") == u"DESERT");
  CHECK_FALSE(lock.exists());
}
