#include "forms/controls.h"

namespace tessara {

void PictureBox::SetPicture(const Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  Changed(Aspect::kPicture);
}

void Image::SetPicture(const Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  if (!picture.Empty()) {
    SetPlace({Place().left, Place().top, picture.width * kTwipsPerPixel,
              picture.height * kTwipsPerPixel});
  }
  Changed(Aspect::kPicture);
}

}  // namespace tessara
