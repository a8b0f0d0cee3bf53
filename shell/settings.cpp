#include "shell/settings.h"

#include "platform/conversion.h"

namespace tessara {

void LoadProgramSettings(const SettingsStore& store, ProgramState& state) {
  const auto read = [&store](TextView key, const Text& defaultValue) {
    return store.Read(Text(key), defaultValue);
  };
  state.ShowSplash = read(kShowSplashKey, u"1");
  state.LargeCardColor = read(kLargeCardColorKey, u"0");
  state.LargeCard3D = read(kLargeCard3DKey, u"1");
  state.SmallCardColor = read(kSmallCardColorKey, u"0");
  state.SmallCard3D = read(kSmallCard3DKey, u"1");
  state.BackDrop = read(kBackDropKey, u"DEFAULT");
  state.FirstLoad = BooleanOf(read(kFirstLoadKey, u"True"));
}

}  // namespace tessara
