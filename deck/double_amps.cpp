#include "deck/double_amps.h"

namespace tessara {

Text DoubleAmps(TextView text) {
  Text doubled;
  for (const char16_t character : text) {
    doubled.append(character == u'&' ? 2 : 1, character);
  }
  return doubled;
}

}  // namespace tessara
