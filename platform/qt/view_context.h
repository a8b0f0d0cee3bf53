#pragma once

#include "platform/qt/picture_cache.h"
#include "platform/qt/pixel_scale.h"

namespace tessara {

/// What all views share.
struct ViewContext {
  const PixelScale& scale;
  PictureCache& pictures;
};

}  // namespace tessara
