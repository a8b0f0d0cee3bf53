# The Debian package that cpack makes of a build, for one's own machine; packaging/debian has the source package.
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
# Among them the fonts of the windows and of the printed sheets, and fonts for the scripts that those lack.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_RECOMMENDS "fonts-dejavu-core, fonts-liberation, libreoffice-calc, qt6-wayland, xdg-utils, \
shared-mime-info, desktop-file-utils, fonts-freefont-ttf, fonts-noto-cjk, fonts-noto-color-emoji, fonts-symbola")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/packaging/add_debian_files.cmake)
include(CPack)
