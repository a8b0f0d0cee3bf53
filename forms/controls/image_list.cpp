#include "forms/controls/image_list.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace tessara {

const ImageList::Image& ImageList::At(int index) const {
  if (index < 1 || index > Count()) throw RunTimeError(ErrorNumber::kImageListIndex);
  return images_[static_cast<std::size_t>(index - 1)];
}

const ImageList::Image& ImageList::At(TextView key) const {
  const auto found = std::find_if(images_.begin(), images_.end(),
                                  [key](const Image& image) { return image.key == key; });
  if (found == images_.end()) throw RunTimeError(ErrorNumber::kImageListKey);
  return *found;
}

}  // namespace tessara
