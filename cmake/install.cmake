# An installed program lives whole in a folder of its own below lib, with a link in bin. What the desktop reads
# stands where it looks: entry, MIME package, icons, metadata, manual page.
set(programFolder ${CMAKE_INSTALL_LIBDIR}/tessara)
install(TARGETS tessara tessara_notify RUNTIME DESTINATION ${programFolder})
foreach(module tessara_qt_print tessara_libreoffice tessara_help)
  if(TARGET ${module})
    install(TARGETS ${module} LIBRARY DESTINATION ${programFolder})
  endif()
endforeach()

install(DIRECTORY data/pictures/generated/ DESTINATION ${programFolder}/pictures)
install(DIRECTORY data/icons DESTINATION ${programFolder})
install(FILES data/Notelet.ico packaging/tessara.desktop packaging/tessara.xml DESTINATION ${programFolder})
install(FILES ${CMAKE_BINARY_DIR}/Notelet.xlt ${CMAKE_BINARY_DIR}/TessaraHelp.chm
        DESTINATION ${programFolder} OPTIONAL)
install(DIRECTORY ${CMAKE_BINARY_DIR}/samples DESTINATION ${programFolder})

# install_link(PROGRAM COMPONENT): a link in bin to a program of the folder.
function(install_link program component)
  file(RELATIVE_PATH path ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/tessara/${program})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/link)
  file(CREATE_LINK ${path} ${CMAKE_BINARY_DIR}/link/${program} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/link/${program} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component})
endfunction()
install_link(tessara Unspecified)

install(FILES packaging/tessara.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/tessara.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(DIRECTORY data/icons/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)

# What a software centre shows: pictures only where the build is told at which address those of
# docs/pictures stand.
set(TESSARA_PICTURES_URL "" CACHE STRING "Address of the folder with the pictures of docs/pictures")
set(SCREENSHOTS "")
if(TESSARA_PICTURES_URL)
  set(SCREENSHOTS "<screenshots>")
  foreach(picture extended-back standard-front test-graded builder-standard-new print-window sheet-front)
    set(kind "")
    if(picture STREQUAL extended-back)
      set(kind " type=\"default\"")
    endif()
    string(APPEND SCREENSHOTS
      "<screenshot${kind}><image>${TESSARA_PICTURES_URL}/${picture}.png</image></screenshot>")
  endforeach()
  string(APPEND SCREENSHOTS "</screenshots>")
endif()

# What tells the version.
set(metainfo io.github.tessara.tessara.metainfo.xml)
configure_file(packaging/${metainfo}.in ${metainfo} @ONLY)
configure_file(packaging/tessara.1.in tessara.1 @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${CMAKE_BINARY_DIR}/tessara.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# All that an installation takes from the build, and no test.
add_custom_target(installable DEPENDS tessara samples)
if(TARGET tessara-deck)
  include(companion/install.cmake)
  add_dependencies(installable tessara-deck tessara-print)
endif()
