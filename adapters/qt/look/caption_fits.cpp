#include "adapters/qt/look/caption_fits.h"

namespace tessara {

const FittedCaption& CaptionFits::Fit(const QString& caption, const QFont& font, QSizeF room,
                                      CaptionPlace place, double mostOverhang) {
  const Key key{caption, font, room, place, mostOverhang};
  if (!known_.contains(key)) {
    known_.insert(key, new FittedCaption(FitCaption(caption, font, room, place, mostOverhang)));
  }
  return *known_.object(key);
}

}  // namespace tessara
