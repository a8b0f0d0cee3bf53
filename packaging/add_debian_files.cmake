# Run by cpack in what it is about to pack: what Debian wants beside what every system takes.
set(debian ${CMAKE_CURRENT_LIST_DIR}/debian)
find_program(GZIP gzip REQUIRED)

# Without the time of the build.
function(compress)
  execute_process(COMMAND ${GZIP} -9nf ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(add_files_of package root)
  set(documents ${root}/doc/${package})
  file(GLOB pages ${root}/man/man1/*.1)
  file(COPY ${debian}/changelog ${debian}/copyright DESTINATION ${documents})
  compress(${documents}/changelog ${pages})
  if(EXISTS ${debian}/${package}.lintian-overrides)
    configure_file(${debian}/${package}.lintian-overrides ${root}/lintian/overrides/${package} COPYONLY)
  endif()
endfunction()

# A package for each component; all in one where there is only the program.
set(top ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
if(EXISTS ${top}/deck)
  set(programFiles ${top}/Unspecified/usr/share)
  add_files_of(tessara ${programFiles})
  add_files_of(tessara-deck ${top}/deck/usr/share)
else()
  set(programFiles ${top}/usr/share)
  add_files_of(tessara ${programFiles})
endif()
# The program's modules are nobody else's libraries, but cpack has ldconfig look at every folder below /usr/lib.
# And where a library is needed from two versions on, it names both.
file(APPEND ${programFiles}/lintian/overrides/tessara
  "tessara: maintscript-calls-ldconfig *\ntessara: package-depends-on-multiple-libstdc-versions *\n")
