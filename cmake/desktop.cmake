# The Qt renderer, the freedesktop adapters and the executable.
find_package(Qt6 6.4 COMPONENTS Core Gui Widgets PrintSupport QUIET)
if(NOT Qt6_FOUND)
  message(FATAL_ERROR "Tessara needs Qt 6.4 or newer with its modules Widgets and PrintSupport (Debian: qt6-base-dev). "
    "${Qt6_NOT_FOUND_MESSAGE}")
endif()
if(BUILD_TESTING)
  find_package(Qt6 QUIET OPTIONAL_COMPONENTS Test)
endif()
find_package(Fontconfig REQUIRED)
find_package(PNG REQUIRED)
set(qtRooms look text views views/boxes windows devices)
list(TRANSFORM qtRooms REPLACE "(.+)" "adapters/qt/\\1/*.cpp" OUTPUT_VARIABLE qtGlobs)
file(GLOB qtSources CONFIGURE_DEPENDS ${qtGlobs})
add_library(tessara_qt STATIC ${qtSources})
target_link_libraries(tessara_qt PRIVATE tessara_warnings
  PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets PkgConfig::GLIB PRIVATE Fontconfig::Fontconfig PNG::PNG)
precompile(tessara_qt qtHeaders)
# Printing, which needs the print queues, is a module of its own.
foreach(used base machine forms viewer posix)
  target_link_libraries(tessara_qt PUBLIC tessara_${used})
endforeach()

# Print queues: linked into the modules that print, not into the executable that starts.
find_package(Cups REQUIRED)
file(GLOB cupsSources CONFIGURE_DEPENDS adapters/cups/*.cpp)
add_library(tessara_cups STATIC ${cupsSources})
target_link_libraries(tessara_cups PRIVATE tessara_warnings PUBLIC Cups::Cups)
link_layer(tessara_cups adapters/cups)

# Printer dialog and print surface: loaded by the first job, from the executable's folder.
file(GLOB qtPrintSources CONFIGURE_DEPENDS adapters/qt/print/*.cpp)
add_library(tessara_qt_print MODULE ${qtPrintSources})
set_target_properties(tessara_qt_print PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_libraries(tessara_qt_print PRIVATE tessara_warnings tessara_qt tessara_cups tessara_posix Qt6::PrintSupport)
precompile(tessara_qt_print qtHeaders)

add_executable(tessara shell/main.cpp)
include(cmake/program_files.cmake)
add_dependencies(tessara tessara_qt_print program_files)
set_target_properties(tessara PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_compile_definitions(tessara PRIVATE TESSARA_VERSION="${PROJECT_VERSION}")
target_link_libraries(tessara PRIVATE
  tessara_warnings tessara_core tessara_qt tessara_posix tessara_freedesktop tessara_loader)
