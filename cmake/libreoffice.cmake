# The spreadsheet server over UNO, a module that is loaded at its first use, and the template of
# the card sheets. A program without them runs, and its two-sided printing says that there is no server.
if(NOT TESSARA_DESKTOP)
  return()
endif()
if(NOT TESSARA_LIBREOFFICE)
  add_feature_info(two-sided-printing TESSARA_LIBREOFFICE "printing cards through LibreOffice (TESSARA_LIBREOFFICE)")
  return()
endif()

set(officeProgram /usr/lib/libreoffice/program CACHE PATH "Programs and libraries of LibreOffice")
set(officeSdk /usr/lib/libreoffice/sdk CACHE PATH "Its software development kit")

find_program(CPPUMAKER cppumaker HINTS ${officeSdk}/bin)
find_library(QPDF_LIBRARY qpdf)
file(GLOB libreofficeSources CONFIGURE_DEPENDS adapters/libreoffice/*.cpp)

if(CPPUMAKER AND QPDF_LIBRARY)
  set(withLibreOffice ON)
  # The interfaces that the sources use; what these use in turn is made with them.
  set(unoInterfaces
    beans.PropertyValue beans.XPropertySet bridge.UnoUrlResolver connection.NoConnectException container.XNamed
    document.MacroExecMode document.UpdateDocMode frame.Desktop frame.XComponentLoader frame.XModel
    frame.XStorable lang.DisposedException lang.XComponent sheet.XCellRangeAddressable sheet.XCellRangeData sheet.XCellRangeMovement
    sheet.XSpreadsheet sheet.XSpreadsheetDocument
    sheet.XSpreadsheetView table.CellVertJustify2 table.XColumnRowRange text.WritingMode2 text.XText uno.DeploymentException uno.XComponentContext util.XCloseable)
  list(TRANSFORM unoInterfaces PREPEND -Tcom.sun.star.)
  set(unoHeaders ${CMAKE_BINARY_DIR}/uno)
  set(unoStamp ${unoHeaders}/made)
  add_custom_command(OUTPUT ${unoStamp}
    COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${officeProgram}
            ${CPPUMAKER} -Gc -O${unoHeaders} ${unoInterfaces}
            ${officeProgram}/types.rdb ${officeProgram}/types/offapi.rdb
    COMMAND ${CMAKE_COMMAND} -E touch ${unoStamp}
    COMMENT "Making the headers of LibreOffice's interfaces" VERBATIM)
  add_custom_target(uno_headers DEPENDS ${unoStamp})

  add_library(tessara_uno INTERFACE)
  add_dependencies(tessara_uno uno_headers)
  target_include_directories(tessara_uno SYSTEM INTERFACE ${unoHeaders} ${officeSdk}/include)
  if(TESSARA_SANITIZE)
    target_compile_options(tessara_uno INTERFACE -fsanitize-ignorelist=${CMAKE_SOURCE_DIR}/cmake/false_reports.txt)
  endif()
  target_compile_definitions(tessara_uno INTERFACE UNX LINUX GCC CPPU_ENV=gcc3)
  target_link_libraries(tessara_uno INTERFACE
    ${officeProgram}/libuno_sal.so.3 ${officeProgram}/libuno_cppu.so.3 ${officeProgram}/libuno_cppuhelpergcc3.so.3)

  add_library(tessara_libreoffice MODULE ${libreofficeSources})
  add_dependencies(tessara_libreoffice uno_headers)
  set_target_properties(tessara_libreoffice PROPERTIES
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR} CXX_VISIBILITY_PRESET hidden
    COMPILE_DEFINITIONS POINTERHOLDER_TRANSITION=4
    BUILD_RPATH ${officeProgram} INSTALL_RPATH ${officeProgram})
  target_link_libraries(tessara_libreoffice
    PRIVATE tessara_warnings tessara_uno ${QPDF_LIBRARY} PkgConfig::GLIB)
  link_layer(tessara_libreoffice adapters/libreoffice)
  add_dependencies(tessara tessara_libreoffice)
endif()
add_feature_info(two-sided-printing withLibreOffice
  "printing cards through LibreOffice (TESSARA_LIBREOFFICE; LibreOffice's development kit and qpdf)")

# The template stands beside the executable.
find_program(SOFFICE soffice)
set(templateSource ${CMAKE_SOURCE_DIR}/data/template)
set(template ${CMAKE_BINARY_DIR}/Notelet.xlt)
if(SOFFICE)
  add_custom_command(OUTPUT ${template}
    COMMAND ${PYTHON3} ${templateSource}/make_template.py ${template}
    DEPENDS ${templateSource}/make_template.py ${templateSource}/sheet.py
    COMMENT "Making the template of the card sheets" VERBATIM)
  add_custom_target(template ALL DEPENDS ${template})
  add_dependencies(tessara template)
endif()
add_feature_info(template SOFFICE "the template of the printed cards (TESSARA_LIBREOFFICE; the program soffice)")
