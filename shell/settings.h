#pragma once

#include "deck/program_state.h"
#include "machine/settings_store.h"

namespace tessara {

/// Keys of the settings store, each named after the variable that holds its text.
inline constexpr TextView kShowSplashKey = u"ShowSplash";
inline constexpr TextView kLargeCardColorKey = u"LargeCardColor";
inline constexpr TextView kLargeCard3DKey = u"LargeCard3D";
inline constexpr TextView kSmallCardColorKey = u"SmallCardColor";
inline constexpr TextView kSmallCard3DKey = u"SmallCard3D";
inline constexpr TextView kBackDropKey = u"BackDrop";
inline constexpr TextView kFirstLoadKey = u"FirstLoad";

/// Reads all settings, with a default for each missing key. Writes nothing. Raises error 13
/// where FirstLoad holds no boolean.
void LoadProgramSettings(const SettingsStore& store, ProgramState& state);

}  // namespace tessara
