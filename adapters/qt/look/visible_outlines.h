#pragma once

namespace tessara {

/// The style that Qt brings draws marks and frames as the ground, a little darker: on a dark
/// desktop they are not seen. Here they are; a desktop's own style stays as it is. Before the first
/// widget.
void ShowOutlines();

}  // namespace tessara
