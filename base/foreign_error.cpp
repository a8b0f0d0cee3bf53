#include "base/foreign_error.h"

#include <new>
#include <stdexcept>
#include <system_error>

#include "base/path_error.h"

namespace tessara {

namespace {

template <class E>
bool Is(const std::exception& foreign) {
  return dynamic_cast<const E*>(&foreign) != nullptr;
}

ErrorNumber NumberOf(const std::error_code& code) {
  if (code == std::errc::not_enough_memory) return ErrorNumber::kOutOfMemory;
  // Streams have codes of their own, which tell no cause.
  const std::error_condition ofSystem = code.default_error_condition();
  const bool told = ofSystem.category() == std::generic_category();
  return told ? PathError(ofSystem.value()) : ErrorNumber::kDeviceIo;
}

ErrorNumber NumberOf(const std::exception& foreign) {
  const auto* ofSystem = dynamic_cast<const std::system_error*>(&foreign);
  if (ofSystem != nullptr) return NumberOf(ofSystem->code());
  // A text or a list beyond the longest one there can be.
  const bool tooLong = Is<std::length_error>(foreign);
  if (tooLong || Is<std::bad_alloc>(foreign)) return ErrorNumber::kOutOfMemory;
  if (Is<std::out_of_range>(foreign)) return ErrorNumber::kSubscriptOutOfRange;
  return ErrorNumber::kInternalError;
}

}  // namespace

RunTimeError RunTimeErrorOf(const std::exception& foreign) {
  return RunTimeError(NumberOf(foreign));
}

}  // namespace tessara
