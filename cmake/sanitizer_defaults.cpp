// How the sanitizers look at our programs; what the environment says comes after it.

#include <sanitizer/asan_interface.h>
#include <sanitizer/lsan_interface.h>

/// Up to clang 16 and GCC 13 the blocks of thread-local storage that libraries bring with them are
/// taken at times for those of an old C library, and the leak checker breaks down where it follows
/// what it takes for their lengths.
const char* __asan_default_options() {
  return "intercept_tls_get_addr=0";
}

/// The library of the session bus keeps a buffer of its connection; LibreOffice's libraries keep
/// the descriptions of the types that they have met, and the bridge to a server that was killed
/// until its threads have ended, which may be later than the tests.
const char* __lsan_default_suppressions() {
  return "leak:libdbus-1.so\n"
         "leak:/libreoffice/program/\n";
}

const char* __lsan_default_options() {
  return "print_suppressions=0";
}
