#pragma once

#include "adapters/qt/look/caption_fits.h"
#include "adapters/qt/look/picture_cache.h"
#include "adapters/qt/text/pixel_scale.h"

namespace tessara {

/// What all views share. All of it belongs to the renderer, which outlives its views.
struct ViewContext {
  const PixelScale& scale;
  PictureCache& pictures;
  CaptionFits& captions;
};

}  // namespace tessara
