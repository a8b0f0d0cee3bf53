#pragma once

#include <QCache>

#include "adapters/qt/look/caption_fit.h"

namespace tessara {

/// Captions as they were fitted, for the next time that they are shown in the same room.
class CaptionFits {
 public:
  /// As FitCaption. What comes back stands until the next call.
  [[nodiscard]] const FittedCaption& Fit(const QString& caption, const QFont& font, QSizeF room,
                                         CaptionPlace place, double mostOverhang = 0);
  /// Other fonts are on the desktop.
  void Forget() { known_.clear(); }

 private:
  struct Key {
    QString caption;
    QFont font;
    QSizeF room;
    CaptionPlace place;
    double mostOverhang;
    bool operator==(const Key&) const = default;
    friend std::size_t qHash(const Key& key, std::size_t seed) {
      return qHashMulti(seed, key.caption, key.font, key.room.width(), key.room.height());
    }
  };

  QCache<Key, FittedCaption> known_{256};
};

}  // namespace tessara
