# Writes the table from which the Qt adapter builds the window of a form: one row a .ui file. Their
# headers come by rules of their own: those that CMake's automatic step would write are not known to
# the build before it has ended, which would link a changed window a build too late.
function(lorimet_generate_views result)
  qt_wrap_ui(headers ${ARGN})
  set(includes "")
  set(rows "")
  foreach(ui ${ARGN})
    get_filename_component(form ${ui} NAME_WE)
    file(STRINGS ${ui} top REGEX "^ <widget class=" LIMIT_COUNT 1)
    string(REGEX REPLACE ".*class=\"([A-Za-z]+)\".*" "\\1" base "${top}")
    string(APPEND includes "#include \"../ui_${form}.h\"\n")
    string(APPEND rows
      "    {\"${form}\", [](QWidget* parent) -> QWidget* {\n"
      "       auto* window = new ${base}(parent);\n"
      "       Ui::${form}().setupUi(window);\n"
      "       return window;\n"
      "     }},\n")
  endforeach()
  set(file ${CMAKE_BINARY_DIR}/generated/views.cpp)
  set(text "// The windows of the forms, one row a .ui file. Generated.
#include \"adapters/qt/views.h\"

#include <QDialog>
#include <QMainWindow>

${includes}
namespace lorimet {

const std::map<std::string, ViewFactory>& ViewFactories() {
  static const std::map<std::string, ViewFactory> table = {
${rows}  };
  return table;
}

}  // namespace lorimet
")
  file(CONFIGURE OUTPUT ${file} CONTENT "${text}" @ONLY)
  set(${result} ${file} ${headers} PARENT_SCOPE)
  # What builds of former days made in their own folder would be found first.
  file(GLOB former ${CMAKE_BINARY_DIR}/lorimet_qt_autogen/include/ui_*.h)
  if(former)
    file(REMOVE ${former})
  endif()
  # Static analysis reads what includes them.
  add_custom_target(lorimet_windows_autogen DEPENDS ${headers})
endfunction()
