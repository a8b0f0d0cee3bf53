# Nothing that is built tells where it was built.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)

# The presets make errors of the warnings; the sanitizers follow every target that links the core.
add_library(tessara_warnings INTERFACE)
target_compile_options(tessara_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
# In the tests the word stands here, so that their commands stay those that compiler caches remember.
define_property(TARGET PROPERTY TESSARA_TEST INITIALIZE_FROM_VARIABLE TESSARA_TEST)
if(CMAKE_COMPILE_WARNING_AS_ERROR)
  target_compile_options(tessara_warnings INTERFACE $<$<BOOL:$<TARGET_PROPERTY:TESSARA_TEST>>:-Werror>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # A false alarm of this compiler about the sum of a literal and a string.
  target_compile_options(tessara_warnings INTERFACE -Wno-restrict)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(tessara_warnings INTERFACE
    -Wreserved-identifier -Wsuggest-override -Wzero-as-null-pointer-constant -Wrange-loop-analysis)
endif()
# A local name may be a constant's in another source of the bundle.
target_compile_options(tessara_warnings INTERFACE $<$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>:-Wno-shadow>)

add_library(tessara_sanitizers INTERFACE)
if(TESSARA_SANITIZE OR TESSARA_FUZZ)
  set(sanitizers address,undefined)
  target_link_options(tessara_sanitizers INTERFACE -fsanitize=${sanitizers})
  target_compile_definitions(tessara_sanitizers INTERFACE TESSARA_SANITIZED)
  set(isProgram $<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>)
  target_sources(tessara_sanitizers INTERFACE
    $<${isProgram}:${CMAKE_CURRENT_LIST_DIR}/sanitizer_defaults.cpp>)
  target_compile_options(tessara_sanitizers INTERFACE
    -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()

# What is released is hardened: docs/performance.md tells what that costs. The sanitizers' builds are not.
if(NOT sanitizers)
  include(CheckCXXCompilerFlag)
  include(CheckPIESupported)
  check_pie_supported(LANGUAGES CXX)
  set(hardening -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
  # Control-flow protection, by the name that it has on the processor.
  check_cxx_compiler_flag(-fcf-protection TESSARA_CF_PROTECTION)
  check_cxx_compiler_flag(-mbranch-protection=standard TESSARA_BRANCH_PROTECTION)
  if(TESSARA_CF_PROTECTION)
    list(APPEND hardening -fcf-protection)
  elseif(TESSARA_BRANCH_PROTECTION)
    list(APPEND hardening -mbranch-protection=standard)
  endif()
  set(released $<CONFIG:RelWithDebInfo,Release>)
  add_compile_options("$<${released}:${hardening}>")
  add_link_options("$<${released}:-Wl,-z,relro,-z,now>")
endif()

# unite(TARGET): in a build that compiles several sources as one, those of the target that have no name in common.
set(sourcesInABundle 10)
function(unite target)
  if(NOT CMAKE_UNITY_BUILD)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  execute_process(COMMAND ${PYTHON3} ${CMAKE_SOURCE_DIR}/scripts/source_bundles.py ${sourcesInABundle} ${sources}
    OUTPUT_VARIABLE bundles COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[^\n]+" bundles "${bundles}")
  foreach(line ${bundles})
    string(REGEX MATCH "^([0-9]+) (.*)$" matched "${line}")
    set_source_files_properties(${CMAKE_MATCH_2} PROPERTIES UNITY_GROUP bundle_${CMAKE_MATCH_1})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()
