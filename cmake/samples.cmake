# The sample decks, made from their source texts, in the folder samples of the build.
set(samplesSource ${CMAKE_SOURCE_DIR}/data/samples)
set(samplesFolder ${CMAKE_BINARY_DIR}/samples)
file(GLOB sampleSources CONFIGURE_DEPENDS ${samplesSource}/*)
if(${samplesSource}/make_decks.py IN_LIST sampleSources)
  add_custom_command(OUTPUT ${samplesFolder}/capitals.tsr
    COMMAND ${CMAKE_COMMAND} -E make_directory ${samplesFolder}
    COMMAND ${PYTHON3} ${samplesSource}/make_decks.py ${samplesFolder}
    COMMAND ${CMAKE_COMMAND} -E touch ${samplesFolder}/capitals.tsr
    DEPENDS ${sampleSources}
    COMMENT "Making the sample decks")
  add_custom_target(samples ALL DEPENDS ${samplesFolder}/capitals.tsr)
endif()
