#include "adapters/qt/look/png_picture.h"

#include <QFile>
#include <png.h>

namespace tessara {

QImage ReadPng(const QString& path) {
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&png, QFile::encodeName(path).constData()) == 0) return {};
  png.format = PNG_FORMAT_RGBA;
  QImage image(static_cast<int>(png.width), static_cast<int>(png.height), QImage::Format_RGBA8888);
  const auto bytesPerLine = static_cast<png_int_32>(image.bytesPerLine());
  const bool read = !image.isNull() &&
                    png_image_finish_read(&png, nullptr, image.bits(), bytesPerLine, nullptr) != 0;
  png_image_free(&png);
  return read ? image : QImage();
}

}  // namespace tessara
