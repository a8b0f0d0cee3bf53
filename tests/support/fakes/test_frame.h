#pragma once

#include "deck/app_frame.h"

namespace tessara::test {

/// A frame of fixed size that remembers what was asked of it. Pictures stand under the real keys.
class TestFrame : public AppFrame {
 public:
  int width = 12120;
  int height = 9390;
  int aboutClosed = 0;
  int splashClosed = 0;
  ImageList wallPaper{{{u"White Flat", {"skins/white_flat.png", 323, 90}},
                       {u"White 3D", {"skins/white_3d.png", 327, 93}},
                       {u"Yellow Flat", {"skins/yellow_flat.png", 323, 90}},
                       {u"Yellow 3D", {"skins/yellow_3d.png", 327, 93}},
                       {u"Flip", {"print/flip.png", 117, 37}},
                       {u"NonFlip", {"print/nonflip.png", 117, 37}},
                       {u"FlipDisabled", {"print/flip_disabled.png", 117, 37}}}};
  ImageList tiles{{{u"DEFAULT", {"backdrops/DEFAULT.jpg", 64, 64}},
                   {u"DIGITAL", {"backdrops/DIGITAL.jpg", 64, 64}},
                   {u"DESERT", {"backdrops/DESERT.gif", 160, 120}}}};

  [[nodiscard]] int Width() const override { return width; }
  [[nodiscard]] int Height() const override { return height; }
  [[nodiscard]] int ScaleWidth() const override { return width - 120; }
  [[nodiscard]] int ScaleHeight() const override { return height - 390; }
  [[nodiscard]] const ImageList& CardPictures() const override { return wallPaper; }
  [[nodiscard]] const ImageList& BackdropTiles() const override { return tiles; }
  void CloseAbout() override { ++aboutClosed; }
  void CloseSplash() override { ++splashClosed; }
};

}  // namespace tessara::test
