#include "forms/controls/pictures.h"

#include "forms/assign.h"

namespace tessara {

void PictureBox::SetPicture(const Picture& picture) {
  if (Assign(picture_, picture)) Changed(Aspect::kPicture);
}

void Image::SetPicture(const Picture& picture) {
  if (!Assign(picture_, picture)) return;
  if (!picture.Empty()) {
    SetBounds({BoundsOf().left, BoundsOf().top, picture.width * kTwipsPerPixel,
               picture.height * kTwipsPerPixel});
  }
  Changed(Aspect::kPicture);
}

void Image::UserClick() {
  if (TakesInput()) Raise(onClick);
}

}  // namespace tessara
