#include "forms/controls/label.h"

namespace tessara {

void Label::UserClick() {
  if (TakesInput()) Raise(onClick);
}

}  // namespace tessara
