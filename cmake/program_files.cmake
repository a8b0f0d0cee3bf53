# The files that stand beside the executable: pictures, icons, the deck icon.
add_custom_target(program_files ALL
  COMMAND ${CMAKE_COMMAND} -E copy_directory
          ${CMAKE_SOURCE_DIR}/data/pictures/generated ${CMAKE_BINARY_DIR}/pictures
  COMMAND ${CMAKE_COMMAND} -E copy_directory
          ${CMAKE_SOURCE_DIR}/data/icons ${CMAKE_BINARY_DIR}/icons
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${CMAKE_SOURCE_DIR}/data/Notelet.ico ${CMAKE_BINARY_DIR}/Notelet.ico
  COMMENT "Pictures and icons"
  VERBATIM)

# Drawn anew from their scripts: only by hand, since the drawings are kept.
add_custom_target(pictures
  COMMAND ${CMAKE_SOURCE_DIR}/data/pictures/draw.py
  COMMENT "Drawing all pictures" VERBATIM)
