# Compiles translations/*.ts and lays them, the toolkit's own words and the pictures into the
# programs, and the help pages beside them.
find_program(LRELEASE lrelease HINTS /usr/lib/qt6/bin ${QT6_INSTALL_PREFIX}/lib/qt6/bin REQUIRED)

# The words of the toolkit's own boxes and dialogs.
foreach(language fr es)
  find_file(LORIMET_QTBASE_${language} qtbase_${language}.qm REQUIRED
    HINTS ${QT6_INSTALL_PREFIX}/share/qt6/translations ${QT6_INSTALL_PREFIX}/translations)
endforeach()

file(GLOB LORIMET_PICTURES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/pictures/*.png)

# The resources of a program, as sources for its target: translations/<name>_*.ts compiled, and what
# all programs share. To be called in the folder of a target that has them.
function(lorimet_resources result name)
  file(GLOB texts CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/${name}_*.ts)
  set(compiled "")
  set(rows "")
  foreach(ts ${texts})
    get_filename_component(stem ${ts} NAME_WE)
    set(qm ${CMAKE_BINARY_DIR}/resources/${stem}.qm)
    add_custom_command(OUTPUT ${qm}
      COMMAND ${LRELEASE} -silent ${ts} -qm ${qm}
      DEPENDS ${ts} VERBATIM)
    list(APPEND compiled ${qm})
    string(APPEND rows "    <file alias=\"translations/${stem}.qm\">${qm}</file>\n")
  endforeach()
  foreach(language fr es)
    string(APPEND rows "    <file alias=\"translations/qtbase_${language}.qm\">"
      "${LORIMET_QTBASE_${language}}</file>\n")
  endforeach()
  foreach(picture ${LORIMET_PICTURES})
    get_filename_component(file ${picture} NAME)
    string(APPEND rows "    <file alias=\"pictures/${file}\">${picture}</file>\n")
  endforeach()
  set(qrc ${CMAKE_BINARY_DIR}/resources/${name}.qrc)
  file(CONFIGURE OUTPUT ${qrc} CONTENT
"<RCC>
  <qresource prefix=\"/\">
${rows}  </qresource>
</RCC>
")
  set_source_files_properties(${qrc} PROPERTIES AUTORCC_OPTIONS "--compress-algo;zlib")
  set(${result} ${qrc} ${compiled} PARENT_SCOPE)
endfunction()

lorimet_resources(LORIMET_RESOURCES lorimet)

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
