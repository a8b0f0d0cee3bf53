# The little program that shows a desktop notification. It lies beside the executable, which runs
# without it too.
if(NOT TARGET tessara)
  return()
endif()
pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0)
add_executable(tessara_notify adapters/freedesktop/notify/notify.cpp)
set_target_properties(tessara_notify PROPERTIES OUTPUT_NAME tessara-notify RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_libraries(tessara_notify PRIVATE tessara_warnings PkgConfig::GIO)
add_dependencies(tessara tessara_notify)
