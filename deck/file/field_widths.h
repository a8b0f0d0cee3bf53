#pragma once

#include <array>
#include <cstddef>

namespace tessara {

// The fields of a record of the deck file, in bytes; docs/deck-format.md tells what they hold. A
// text that is longer than its field is cut, and the box that it is typed in is marked.

inline constexpr std::size_t kRecordSize = 1192;

/// The fields for a card's text and its back, and a short field.
inline constexpr std::size_t kTextWidth = 444;
inline constexpr std::size_t kShortWidth = 75;

/// How many bytes of a record there must be at least: one that is cut off before the end of its
/// number has no row to go to.
inline constexpr std::size_t kLeastRecord = 447;

/// A field of a record: where it begins and its width, in bytes.
struct RecordField {
  std::size_t offset;
  std::size_t width;
};

inline constexpr RecordField kTypeField = {0, 1};
inline constexpr RecordField kTextField = {1, kTextWidth};
inline constexpr RecordField kNumberField = {445, 2};
inline constexpr std::array<RecordField, 4> kShortFields = {
    {{447, kShortWidth}, {522, kShortWidth}, {597, kShortWidth}, {672, kShortWidth}}};
inline constexpr RecordField kAnswerField = {747, 1};
inline constexpr RecordField kLongField = {748, kTextWidth};
static_assert(kLongField.offset + kLongField.width == kRecordSize);
static_assert(kNumberField.offset + kNumberField.width == kLeastRecord);

}  // namespace tessara
