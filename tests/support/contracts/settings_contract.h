#pragma once

#include <doctest/doctest.h>

#include "machine/settings_store.h"

namespace tessara::test {

/// What every settings store keeps to, one without a setting at first.
inline void CheckSettingsContract(SettingsStore& store) {
  CHECK(store.Read(u"BackDrop", u"default") == u"default");
  store.Write(u"BackDrop", u"DESERT");
  store.Write(u"ShowSplash", u"");
  CHECK(store.Read(u"BackDrop", u"default") == u"DESERT");
  CHECK(store.Read(u"ShowSplash", u"default").empty());
  store.Write(u"BackDrop", u"GRANITE");
  CHECK(store.Read(u"BackDrop", u"default") == u"GRANITE");
  CHECK(store.Read(u"FirstLoad", u"default") == u"default");
}

}  // namespace tessara::test
