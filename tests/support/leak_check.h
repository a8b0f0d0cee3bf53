#pragma once

#ifdef TESSARA_SANITIZED
#include <sanitizer/lsan_interface.h>
#endif

namespace tessara::test {

/// Under the sanitizers: looks for leaks now, while every thread still stands, and not again as the
/// process ends, because a thread that is ending can break the leak checker itself. Leaks end the
/// process.
inline void LookForLeaks() {
#ifdef TESSARA_SANITIZED
  __lsan_do_leak_check();
#endif
}

}  // namespace tessara::test
