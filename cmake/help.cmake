# The help: its pages as a compiled help file, and the module that shows it. Both lie beside the
# executable; a program without them runs, and stays silent when it is asked for help.
if(NOT TESSARA_DESKTOP)
  return()
endif()

find_program(CHMCMD NAMES chmcmd chmcmd-3.2.2)
if(CHMCMD)
  set(helpFile ${CMAKE_BINARY_DIR}/TessaraHelp.chm)
  set(helpWork ${CMAKE_BINARY_DIR}/help)
  file(GLOB_RECURSE helpSources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/help/*)
  # The compiler writes beside its sources, which therefore are a copy.
  add_custom_command(OUTPUT ${helpFile}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${helpWork}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/data/help ${helpWork}
    COMMAND ${CMAKE_COMMAND} -E chdir ${helpWork} ${CHMCMD} --verbosity 0 TessaraHelp.hhp
    COMMAND ${CMAKE_COMMAND} -E copy ${helpWork}/TessaraHelp.chm ${helpFile}
    DEPENDS ${helpSources}
    COMMENT "Compiling the help")
  add_custom_target(help_file ALL DEPENDS ${helpFile})
endif()

find_path(CHM_INCLUDE_DIR chm_lib.h)
find_library(CHM_LIBRARY chm)
if(TARGET tessara_qt AND CHM_INCLUDE_DIR AND CHM_LIBRARY)
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
  if(TARGET tessara)
    add_dependencies(tessara tessara_help)
  endif()
endif()
if(TARGET tessara AND TARGET help_file)
  add_dependencies(tessara help_file)
endif()
