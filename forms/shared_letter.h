#pragma once

#include <algorithm>
#include <vector>

namespace tessara {

/// Where a letter leads among controls, or among the entries of a menu.
template <class Item>
struct LetterTarget {
  Item* item = nullptr;  ///< null where none carries the letter
  bool alone = false;    ///< the letter is its own: it is pressed, and not only gone to
};

/// Of those that carry the letter, the next one behind `current`, which may be null or no item.
/// `items` in their order on screen.
template <class Item, class Carries>
[[nodiscard]] LetterTarget<Item> TargetOfLetter(std::vector<Item*> items, const Item* current,
                                                const Carries& carries) {
  const auto at = std::find(items.begin(), items.end(), current);
  if (at != items.end()) std::rotate(items.begin(), at + 1, items.end());
  std::erase_if(items, [&carries](Item* item) { return !carries(*item); });
  if (items.empty()) return {};
  return {items.front(), items.size() == 1};
}

}  // namespace tessara
