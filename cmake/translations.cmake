# Compiles translations/*.ts and lays them, the pictures and the help pages into the program.
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

# The help pages stand as files beside the program, where the help viewer finds them.
function(lorimet_copy_help target)
  file(GLOB_RECURSE pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/help/*)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/help.stamp
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/help ${CMAKE_BINARY_DIR}/bin/help
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/help.stamp
    DEPENDS ${pages} VERBATIM)
  add_custom_target(${target}_help ALL DEPENDS ${CMAKE_BINARY_DIR}/help.stamp)
  add_dependencies(${target} ${target}_help)
endfunction()
