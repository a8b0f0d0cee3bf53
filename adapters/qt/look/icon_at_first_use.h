#pragma once

#include <QIcon>
#include <functional>

namespace tessara {

/// An icon that is made when it is shown: most of what a style gives its widgets never is.
[[nodiscard]] QIcon IconAtFirstUse(std::function<QIcon()> make);

}  // namespace tessara
