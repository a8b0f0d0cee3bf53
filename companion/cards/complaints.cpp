#include "companion/cards/complaints.h"

#include "base/utf8.h"
#include "companion/cards/visible_text.h"

namespace tessara {

std::string MessageAt(const Place& place, const std::string& what) {
  std::string message;
  if (place.file != nullptr) message = VisibleText(FromUtf8(*place.file)) + ":";
  if (place.line > 0) message += std::to_string(place.line) + ":";
  if (!message.empty()) message += " ";
  if (place.card > 0) message += "card " + std::to_string(place.card) + ": ";
  return message + what;
}

}  // namespace tessara
