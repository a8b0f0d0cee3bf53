#pragma once

#include <com/sun/star/uno/Any.hxx>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "base/text.h"

namespace tessara {

/// Row and column count from 1.
struct CellPlace {
  std::int16_t row;
  std::int16_t column;
  bool operator==(const CellPlace&) const = default;
  bool operator<(const CellPlace& other) const {
    return std::tie(row, column) < std::tie(other.row, other.column);
  }
};

/// A property of a font for the cells of a range, by the server's name for it.
struct FontSetting {
  Text range;
  std::string property;
  com::sun::star::uno::Any value;
  bool operator==(const FontSetting&) const = default;
};

/// What the program has asked of a sheet.
struct SheetContent {
  using Texts = std::map<CellPlace, Text>;
  /// As they were given; the others are the template's.
  Texts texts;
  /// In the order of their asking, without those that a later one covers.
  std::vector<FontSetting> fonts;
};

}  // namespace tessara
