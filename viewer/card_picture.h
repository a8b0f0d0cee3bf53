#pragma once

#include "forms/app_frame.h"

namespace tessara {

/// Which list of the frame a picture is taken from.
inline constexpr int kWallPaperList = 0;
inline constexpr int kBackdropList = 1;

/// The picture of a key. "<NONE>" asks for a picture that no list holds: error 35600. An unknown
/// key is error 35601.
[[nodiscard]] const Picture& CardPicture(TextView key, int list, const AppFrame& frame);

}  // namespace tessara
