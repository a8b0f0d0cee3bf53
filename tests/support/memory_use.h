#pragma once

#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace tessara::test {

/// Bytes that the process has on the heap. 0 under the address sanitizer, whose own report of
/// leaks takes the place of the comparison.
inline long HeapBytes() {
#ifdef TESSARA_SANITIZED
  return 0;
#else
  return static_cast<long>(mallinfo2().uordblks);
#endif
}

/// Bytes of the process that are in memory; 0 under the address sanitizer, which gives nothing
/// back.
inline long ResidentBytes() {
#ifdef TESSARA_SANITIZED
  return 0;
#else
  long all = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * sysconf(_SC_PAGESIZE);
#endif
}

/// How often that is done which is to leave nothing behind. The report of leaks needs it a few
/// times.
constexpr int Repeated(int times) {
#ifdef TESSARA_SANITIZED
  return times / 10;
#else
  return times;
#endif
}

/// Bytes of addresses that the process has taken.
inline long AddressBytes() {
  long all = 0;
  std::ifstream("/proc/self/statm") >> all;
  return all * sysconf(_SC_PAGESIZE);
}

/// What the process holds now; compared with the same of later.
struct MemoryUse {
  long heap = HeapBytes();
  long resident = ResidentBytes();
};

}  // namespace tessara::test
