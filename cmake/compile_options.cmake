# Warnings are errors in our own code; the sanitizers follow every target that links the core.
add_library(tessara_warnings INTERFACE)
target_compile_options(tessara_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # A false alarm of this compiler about the sum of a literal and a string.
  target_compile_options(tessara_warnings INTERFACE -Wno-restrict)
endif()

add_library(tessara_sanitizers INTERFACE)
if(TESSARA_SANITIZE)
  target_compile_options(tessara_sanitizers INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tessara_sanitizers INTERFACE -fsanitize=address,undefined)
endif()
if(TESSARA_FUZZ)
  target_compile_options(tessara_sanitizers INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
endif()
