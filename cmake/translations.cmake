# Compiles translations/*.ts and lays them, the toolkit's own words and the pictures into the
# program, and the help pages beside it.
find_program(LRELEASE lrelease HINTS /usr/lib/qt6/bin ${QT6_INSTALL_PREFIX}/lib/qt6/bin REQUIRED)

file(GLOB LORIMET_TS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/*.ts)
set(LORIMET_QM "")
set(qrc_rows "")
foreach(ts ${LORIMET_TS})
  get_filename_component(name ${ts} NAME_WE)
  set(qm ${CMAKE_BINARY_DIR}/resources/${name}.qm)
  add_custom_command(OUTPUT ${qm}
    COMMAND ${LRELEASE} -silent ${ts} -qm ${qm}
    DEPENDS ${ts} VERBATIM)
  list(APPEND LORIMET_QM ${qm})
  string(APPEND qrc_rows "    <file alias=\"translations/${name}.qm\">${qm}</file>\n")
endforeach()

# The words of the toolkit's own boxes and dialogs.
foreach(language fr es)
  find_file(LORIMET_QTBASE_${language} qtbase_${language}.qm REQUIRED
    HINTS ${QT6_INSTALL_PREFIX}/share/qt6/translations ${QT6_INSTALL_PREFIX}/translations)
  string(APPEND qrc_rows "    <file alias=\"translations/qtbase_${language}.qm\">"
    "${LORIMET_QTBASE_${language}}</file>\n")
endforeach()

file(GLOB LORIMET_PICTURES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/pictures/*.png)
foreach(picture ${LORIMET_PICTURES})
  get_filename_component(name ${picture} NAME)
  string(APPEND qrc_rows "    <file alias=\"pictures/${name}\">${picture}</file>\n")
endforeach()

file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/resources/lorimet.qrc CONTENT
"<RCC>
  <qresource prefix=\"/\">
${qrc_rows}  </qresource>
</RCC>
")
set_source_files_properties(${CMAKE_BINARY_DIR}/resources/lorimet.qrc PROPERTIES
  AUTORCC_OPTIONS "--compress-algo;zlib")
set(LORIMET_RESOURCES ${CMAKE_BINARY_DIR}/resources/lorimet.qrc ${LORIMET_QM})

# The help pages and what they show are files beside the program, where the help viewer finds them.
file(GLOB_RECURSE LORIMET_HELP CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*)
set(help_folder ${CMAKE_BINARY_DIR}/bin/help)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/help.stamp
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/help ${help_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${help_folder}/pictures
  COMMAND ${CMAKE_COMMAND} -E copy ${LORIMET_PICTURES} ${help_folder}/pictures
  COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/help.stamp
  DEPENDS ${LORIMET_HELP} ${LORIMET_PICTURES} VERBATIM)
add_custom_target(lorimet_help DEPENDS ${CMAKE_BINARY_DIR}/help.stamp)

# Gives a program the help pages: who builds the program alone has them beside it.
function(lorimet_add_help)
  foreach(target ${ARGN})
    add_dependencies(${target} lorimet_help)
  endforeach()
endfunction()
