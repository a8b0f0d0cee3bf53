# The command tessara-deck: in the program's folder, with a link in bin, and a package of its own, which
# needs no Qt. What prints for it comes with the program.
install(TARGETS tessara-deck RUNTIME DESTINATION ${programFolder} COMPONENT deck)
install(TARGETS tessara-print RUNTIME DESTINATION ${programFolder})
install_link(tessara-deck deck)

install(FILES packaging/completions/tessara-deck.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME tessara-deck COMPONENT deck)
install(FILES packaging/completions/_tessara-deck DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
        COMPONENT deck)
install(FILES packaging/completions/tessara-deck.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
        COMPONENT deck)
configure_file(packaging/tessara-deck.1.in tessara-deck.1 @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/tessara-deck.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT deck)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Unspecified deck)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_NAME tessara)
set(CPACK_DEBIAN_DECK_PACKAGE_NAME tessara-deck)
# Its first line is the program's.
set(CPACK_COMPONENT_DECK_DESCRIPTION
"The command tessara-deck converts and lists decks: it makes them of import
texts, spreadsheets' tables and vocabulary files, gives the cards back in each
of these formats, checks decks and lists them. It prints them where the
package tessara is installed too.")
set(CPACK_DEBIAN_DECK_PACKAGE_SUGGESTS tessara)
