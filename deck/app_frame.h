#pragma once

#include "forms/controls/image_list.h"

namespace tessara {

/// What the windows ask of the frame that holds them.
class AppFrame {
 public:
  virtual ~AppFrame() = default;
  /// Outer size and client area in twips.
  [[nodiscard]] virtual int Width() const = 0;
  [[nodiscard]] virtual int Height() const = 0;
  [[nodiscard]] virtual int ScaleWidth() const = 0;
  [[nodiscard]] virtual int ScaleHeight() const = 0;
  /// Card skins and the pictures of the print window.
  [[nodiscard]] virtual const ImageList& CardPictures() const = 0;
  /// The backdrop's tiles.
  [[nodiscard]] virtual const ImageList& BackdropTiles() const = 0;
  /// Unloads the About box, if it is loaded.
  virtual void CloseAbout() = 0;
  /// Unloads the start-up picture, if it is loaded.
  virtual void CloseSplash() = 0;
};

}  // namespace tessara
