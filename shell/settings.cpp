#include "shell/settings.h"

#include "base/conversion.h"

namespace tessara {

void LoadProgramSettings(const SettingsStore& store, ProgramState& state) {
  const auto read = [&store](TextView key, const Text& defaultValue) {
    return store.Read(Text(key), defaultValue);
  };
  state.settings.showSplash = read(kShowSplashKey, u"1");
  state.settings.largeCardColor = read(kLargeCardColorKey, u"0");
  state.settings.largeCard3D = read(kLargeCard3DKey, u"1");
  state.settings.smallCardColor = read(kSmallCardColorKey, u"0");
  state.settings.smallCard3D = read(kSmallCard3DKey, u"1");
  state.settings.backdrop = read(kBackDropKey, u"DEFAULT");
  state.settings.firstLoad = BooleanOf(read(kFirstLoadKey, u"True"));
}

}  // namespace tessara
