# The files that stand beside the executable: pictures, icons, the deck icon, and
# what the first start tells the desktop.
add_custom_target(program_files ALL
  COMMAND ${CMAKE_COMMAND} -E copy_directory
          ${CMAKE_SOURCE_DIR}/data/pictures/generated ${CMAKE_BINARY_DIR}/pictures
  COMMAND ${CMAKE_COMMAND} -E copy_directory
          ${CMAKE_SOURCE_DIR}/data/icons ${CMAKE_BINARY_DIR}/icons
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${CMAKE_SOURCE_DIR}/data/Notelet.ico ${CMAKE_BINARY_DIR}/Notelet.ico
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${CMAKE_SOURCE_DIR}/packaging/tessara.desktop ${CMAKE_SOURCE_DIR}/packaging/tessara.xml ${CMAKE_BINARY_DIR}
  COMMENT "Pictures, icons, and what the desktop is told"
  VERBATIM)

# Drawn anew from their scripts: only by hand, since the drawings are kept.
add_custom_target(pictures
  COMMAND ${CMAKE_SOURCE_DIR}/data/pictures/draw.py
  COMMENT "Drawing all pictures" VERBATIM)
