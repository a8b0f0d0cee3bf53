#include "adapters/qt/views/picture_view.h"

#include "adapters/qt/views/picture_widget.h"

namespace tessara {

namespace {

void Show(const Picture& picture, QWidget& widget, const ViewContext& context) {
  static_cast<PictureWidget&>(widget).Show(context.pictures.PixmapOf(picture),
                                           context.scale.FromPixels(picture.width, picture.height));
}

}  // namespace

PictureBoxView::PictureBoxView(PictureBox& box, QWidget& parent, const ViewContext& context)
    : ControlView(box, *new PictureWidget(&parent), context) {}

void PictureBoxView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kPicture) PrepareWhenSeen();
  if (aspect == Aspect::kColor)
    Widget().setAutoFillBackground(As<PictureBox>().BackColor() != Color{});
}

void PictureBoxView::Prepare() {
  Show(As<PictureBox>().PictureOf(), Widget(), Context());
}

ImageView::ImageView(Image& image, QWidget& parent, const ViewContext& context)
    : ControlView(image, *new PictureWidget(&parent), context) {
  if (image.onClick) Widget().setCursor(Qt::PointingHandCursor);
}

void ImageView::FollowOwn(Aspect aspect) {
  if (aspect == Aspect::kPicture) PrepareWhenSeen();
}

void ImageView::Prepare() {
  Show(As<Image>().PictureOf(), Widget(), Context());
}

}  // namespace tessara
