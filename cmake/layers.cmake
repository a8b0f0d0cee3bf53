# A target for each folder of the core, linked with what the list of layers lets it use: a call that
# goes up has nothing to link with.
file(STRINGS ${CMAKE_SOURCE_DIR}/cmake/layers.txt layerLines REGEX "^[a-z]")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/cmake/layers.txt)

# link_layer(TARGET FOLDER): what the folder may use, those that are built.
function(link_layer target folder)
  set(uses "")
  foreach(line ${layerLines})
    if(line MATCHES "^${folder}:(.*)$")
      string(STRIP "${CMAKE_MATCH_1}" uses)
      string(REPLACE " " ";" uses "${uses}")
    endif()
  endforeach()
  foreach(used ${uses})
    get_filename_component(name ${used} NAME)
    target_link_libraries(${target} PUBLIC tessara_${name})
  endforeach()
endfunction()

set(coreFolders "")
add_library(tessara_core INTERFACE)
foreach(line ${layerLines})
  string(REGEX REPLACE ":.*" "" folder "${line}")
  if(folder MATCHES "/")
    continue()
  endif()
  list(APPEND coreFolders ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*/*.cpp)
  list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/shell/main.cpp)
  add_library(tessara_${folder} STATIC ${sources})
  target_include_directories(tessara_${folder} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(tessara_${folder} PRIVATE tessara_warnings PUBLIC tessara_sanitizers)
  link_layer(tessara_${folder} ${folder})
  # Each window has a width and a height: its sources can't be compiled as one.
  set_target_properties(tessara_${folder} PROPERTIES UNITY_BUILD OFF)
  target_link_libraries(tessara_core INTERFACE tessara_${folder})
endforeach()
# Unicode's characters and normal forms; starts quickly, and nothing of it needs data files.
find_library(UNISTRING_LIBRARY unistring REQUIRED)
target_link_libraries(tessara_base PRIVATE ${UNISTRING_LIBRARY})
# Every text that is read goes through it: worth the vector instructions.
set_source_files_properties(base/ascii.cpp PROPERTIES COMPILE_OPTIONS $<$<CONFIG:RelWithDebInfo,Release>:-O3>)
