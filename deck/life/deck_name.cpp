#include "deck/life/deck_name.h"

namespace tessara {

Text DeckNameOf(TextView path) {
  const std::size_t separator = path.find_last_of(u"/\\");
  if (separator == TextView::npos) return {};
  const TextView fileName = path.substr(separator + 1);
  const std::size_t point = fileName.find(u'.');
  return point == TextView::npos ? Text() : Text(fileName.substr(0, point));
}

}  // namespace tessara
