#pragma once

#include <vector>

#include "base/text.h"
#include "forms/look.h"

namespace tessara {

/// Pictures in order, by key or by index from 1.
class ImageList {
 public:
  struct Image {
    Text key;
    Picture picture;
  };

  ImageList() = default;
  explicit ImageList(std::vector<Image> images) : images_(std::move(images)) {}

  [[nodiscard]] int Count() const { return static_cast<int>(images_.size()); }
  /// Raises the image list's index error (35600) for an index outside 1 to Count.
  [[nodiscard]] const Image& At(int index) const;
  /// Raises the image list's key error (35601) for a key that it does not hold.
  [[nodiscard]] const Image& At(TextView key) const;

 private:
  std::vector<Image> images_;
};

}  // namespace tessara
