# An installed program lives whole in lib/tessara, with a link in bin. What the desktop reads
# stands where it looks: entry, MIME package, icons, metadata, manual page.
set(programFolder lib/tessara)
install(TARGETS tessara tessara_notify RUNTIME DESTINATION ${programFolder})
foreach(module tessara_qt_print tessara_libreoffice tessara_help)
  if(TARGET ${module})
    install(TARGETS ${module} LIBRARY DESTINATION ${programFolder})
  endif()
endforeach()

install(DIRECTORY data/pictures/generated/ DESTINATION ${programFolder}/pictures)
install(DIRECTORY data/icons DESTINATION ${programFolder})
install(FILES data/Notelet.ico DESTINATION ${programFolder})
install(FILES ${CMAKE_BINARY_DIR}/Notelet.xlt ${CMAKE_BINARY_DIR}/TessaraHelp.chm
        DESTINATION ${programFolder} OPTIONAL)
install(DIRECTORY ${CMAKE_BINARY_DIR}/samples DESTINATION ${programFolder} OPTIONAL)

install(CODE "
  set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  file(MAKE_DIRECTORY \"\${bin}\")
  file(CREATE_LINK ../${programFolder}/tessara \"\${bin}/tessara\" SYMBOLIC)")

install(FILES packaging/tessara.desktop DESTINATION share/applications)
install(FILES packaging/tessara.xml DESTINATION share/mime/packages)

# What a software centre shows: pictures only where the build is told at which address those of
# docs/pictures stand.
set(TESSARA_PICTURES_URL "" CACHE STRING "Address of the folder with the pictures of docs/pictures")
set(SCREENSHOTS "")
if(TESSARA_PICTURES_URL)
  set(SCREENSHOTS "<screenshots>")
  foreach(picture standard-front extended-front test-graded builder-standard-new print-window sheet-front)
    set(kind "")
    if(picture STREQUAL standard-front)
      set(kind " type=\"default\"")
    endif()
    string(APPEND SCREENSHOTS
      "<screenshot${kind}><image>${TESSARA_PICTURES_URL}/${picture}.png</image></screenshot>")
  endforeach()
  string(APPEND SCREENSHOTS "</screenshots>")
endif()
configure_file(packaging/io.github.tessara.tessara.metainfo.xml ${CMAKE_BINARY_DIR} @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/io.github.tessara.tessara.metainfo.xml DESTINATION share/metainfo)
install(DIRECTORY data/icons/ DESTINATION share/icons)

# Debian wants manual page and change log compressed, without the time of the build.
find_program(GZIP gzip REQUIRED)
function(install_compressed source name folder)
  set(component Unspecified)
  if(ARGC GREATER 3)
    set(component ${ARGV3})
  endif()
  set(packed ${CMAKE_BINARY_DIR}/packed/${name}.gz)
  add_custom_command(OUTPUT ${packed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/packed
    COMMAND sh -c "\"${GZIP}\" -9nc \"${CMAKE_SOURCE_DIR}/${source}\" > \"${packed}\""
    DEPENDS ${source} VERBATIM)
  add_custom_target(packed_${name} ALL DEPENDS ${packed})
  install(FILES ${packed} DESTINATION ${folder} COMPONENT ${component})
endfunction()
install_compressed(packaging/tessara.1 tessara.1 share/man/man1)
install_compressed(packaging/changelog.Debian changelog share/doc/tessara)
install(FILES packaging/copyright DESTINATION share/doc/tessara)
if(TARGET tessara_libreoffice)
  install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME tessara)
endif()

include(companion/install.cmake)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessara)
set(CPACK_PACKAGE_VENDOR "The Tessara developers")
set(CPACK_PACKAGE_CONTACT "The Tessara developers <developers@tessara.example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "learn with flash cards on screen and on paper")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Decks of up to 200 cards to study, to take as a quiz or as a scored test,
to write by hand or to make from text files, and to print as two-sided
paper cards that are folded and torn apart.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The fonts of the windows and of the printed sheets.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_DEPENDS "fonts-dejavu-core, fonts-liberation")
# Among them fonts for the scripts that the fonts of the windows lack.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_RECOMMENDS
    "libreoffice-calc, xdg-utils, shared-mime-info, desktop-file-utils, fonts-freefont-ttf, fonts-noto-cjk, fonts-noto-color-emoji")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
