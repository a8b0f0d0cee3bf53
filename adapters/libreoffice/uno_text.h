#pragma once

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/uno/Sequence.hxx>
#include <initializer_list>
#include <rtl/ustring.hxx>
#include <string>

#include "base/text.h"
#include "base/utf8.h"

namespace tessara {

inline rtl::OUString UnoText(TextView text) {
  return {reinterpret_cast<const sal_Unicode*>(text.data()), static_cast<sal_Int32>(text.size())};
}

/// From UTF-8.
inline rtl::OUString UnoText(const std::string& text) {
  return UnoText(FromUtf8(text));
}

using Properties = com::sun::star::uno::Sequence<com::sun::star::beans::PropertyValue>;

template <class Value>
com::sun::star::beans::PropertyValue Property(const char* name, const Value& value) {
  com::sun::star::beans::PropertyValue property;
  property.Name = UnoText(std::string(name));
  property.Value <<= value;
  return property;
}

inline Properties MakeProperties(
    std::initializer_list<com::sun::star::beans::PropertyValue> properties) {
  return {properties.begin(), static_cast<sal_Int32>(properties.size())};
}

/// The URL of a file: every byte of the path that is no plain character is escaped. That is more
/// than the rules want: the server's command line has a use for some of the others.
[[nodiscard]] std::string FileUrl(const std::string& path);

}  // namespace tessara
