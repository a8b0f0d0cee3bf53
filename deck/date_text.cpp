#include "deck/date_text.h"

namespace tessara {

Text DateText(const Date& date) {
  return DecimalText(date.month) + u"/" + DecimalText(date.day) + u"/" + DecimalText(date.year);
}

}  // namespace tessara
