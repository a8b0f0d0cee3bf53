# The help: its pages as a compiled help file, and the module that shows it. Both lie beside the
# executable; a program without them runs, and stays silent when it is asked for help.
if(NOT TESSARA_DESKTOP)
  return()
endif()
if(NOT TESSARA_HELP)
  add_feature_info(help TESSARA_HELP "the help and its viewer (TESSARA_HELP)")
  return()
endif()

find_program(CHMCMD NAMES chmcmd chmcmd-3.2.2)
if(CHMCMD)
  set(helpFile ${CMAKE_BINARY_DIR}/TessaraHelp.chm)
  set(makeHelp ${CMAKE_SOURCE_DIR}/scripts/make_help.py)
  file(GLOB_RECURSE helpSources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/help/*)
  add_custom_command(OUTPUT ${helpFile}
    COMMAND ${PYTHON3} ${makeHelp} ${CHMCMD} ${helpFile}
    DEPENDS ${helpSources} ${makeHelp}
    COMMENT "Compiling the help" VERBATIM)
  add_custom_target(help_file ALL DEPENDS ${helpFile})
  add_dependencies(tessara help_file)
endif()

find_path(CHM_INCLUDE_DIR chm_lib.h)
find_library(CHM_LIBRARY chm)
if(CHM_INCLUDE_DIR AND CHM_LIBRARY)
  # Compiled once, for the module and for the tests.
  file(GLOB helpViewerSources CONFIGURE_DEPENDS adapters/qt/help/*.cpp)
  add_library(tessara_help_viewer OBJECT ${helpViewerSources})
  target_include_directories(tessara_help_viewer PUBLIC ${CMAKE_SOURCE_DIR} PRIVATE ${CHM_INCLUDE_DIR})
  target_link_libraries(tessara_help_viewer PRIVATE tessara_warnings
    PUBLIC Qt6::Widgets tessara_sanitizers ${CHM_LIBRARY})

  add_library(tessara_help MODULE)
  target_link_libraries(tessara_help PRIVATE tessara_help_viewer)
  set_target_properties(tessara_help PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  headers_compile_alone(help tessara_help_viewer adapters/qt/help/*.h)
  add_dependencies(tessara tessara_help)
endif()
# For the tests that look at the help.
set(helpTargets "")
if(TARGET help_file AND TARGET tessara_help)
  set(withHelp ON)
  set(helpTargets help_file tessara_help)
endif()
add_feature_info(help withHelp "the help and its viewer (TESSARA_HELP; chmcmd and libchm)")
