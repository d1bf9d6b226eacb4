#!/usr/bin/env python3
"""Tests of the layer check: for each rule a tree that keeps it and one that breaks it."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import layer_check  # noqa: E402

UI = """<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>{form}</class>
 <widget class="QDialog" name="{form}">
  <layout class="QVBoxLayout" name="layout">
{items}
  </layout>
 </widget>
</ui>
"""


def ui(form, *names):
    items = "".join(
        f'<item><widget class="{kind}" name="{name}"/></item>\n'
        for kind, name in (n.split(" ") for n in names))
    return UI.format(form=form, items=items)


def form(name, *members, base="Form", before=""):
    lines = "\n".join("  " + m for m in members)
    return (f'#pragma once\n#include "platform/forms.h"\n{before}\n'
            f"class {name} : public {base} {{\n public:\n  explicit {name}(Desktop& d);\n"
            f"{lines}\n}};\n")


class LayerCheckTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.root = Path(self.folder.name)
        self.write("src/platform/forms.h", "class Form {};\n")

    def tearDown(self):
        self.folder.cleanup()

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def findings(self):
        return layer_check.findings(self.root)

    def assert_clean(self):
        self.assertEqual(self.findings(), [])

    def assert_finds(self, *parts):
        found = self.findings()
        self.assertEqual(len(found), 1, found)
        for part in parts:
            self.assertIn(part, found[0])

    def include(self, name, header, target=None):
        """A file that includes a header; the header exists under `target`."""
        if target:
            self.write(target, "")
        quoted = f'"{header}"' if target else f"<{header}>"
        self.write(name, f"#include {quoted}\n")

    # Toolkits.

    def test_the_core_takes_the_standard_library(self):
        self.include("src/session/a.cpp", "vector")
        self.assert_clean()

    def test_the_core_takes_no_toolkit(self):
        for header in ("QString", "windows.h", "unistd.h", "sys/stat.h", "QtWidgets/QLabel"):
            with self.subTest(header):
                self.include("src/session/a.cpp", header)
                self.assert_finds("src/session/a.cpp:1: toolkit", header)

    def test_a_toolkit_in_quotes_is_one_too(self):
        self.write("src/faults/a.h", '\n#include "QString"\n')
        found = self.findings()
        self.assertTrue(found[0].startswith("src/faults/a.h:2: toolkit"), found)

    def test_ports_and_the_program_are_core(self):
        for name in ("src/platform/clock.h", "src/program.cpp"):
            with self.subTest(name):
                self.include(name, "QTimer")
                self.assert_finds(name, "toolkit")
                (self.root / name).unlink()

    def test_each_adapter_takes_its_own_platform(self):
        for name, header in (("qt", "QLabel"), ("posix", "unistd.h"), ("windows", "windows.h"),
                             ("headless", "map")):
            self.include(f"src/adapters/{name}/a.cpp", header)
        self.include("src/main.cpp", "QApplication")
        self.assert_clean()

    def test_adapters_do_not_take_each_others_platform(self):
        for name, header in (("qt", "unistd.h"), ("posix", "QLabel"), ("windows", "QLabel"),
                             ("headless", "unistd.h"), ("headless", "QLabel")):
            with self.subTest(f"{name} {header}"):
                self.include(f"src/adapters/{name}/a.cpp", header)
                self.assert_finds(f"src/adapters/{name}/a.cpp", "toolkit")
                (self.root / f"src/adapters/{name}/a.cpp").unlink()

    def test_a_comment_includes_nothing(self):
        self.write("src/session/a.cpp", "// x\n/*\n#include <QString>\n*/\n//#include <QString>\n")
        self.assert_clean()

    # Floors.

    def test_includes_point_down(self):
        for upper, lower in (("support", "platform"), ("session", "support"),
                             ("faults", "session"), ("parameters", "faults"),
                             ("tests", "parameters"), ("reports", "tests"),
                             ("reports", "monitor"), ("tests", "tests")):
            with self.subTest(f"{upper} {lower}"):
                self.include(f"src/{upper}/a.cpp", f"{lower}/b.h", f"src/{lower}/b.h")
                self.assert_clean()

    def test_includes_do_not_point_up_or_across(self):
        for lower, upper in (("platform", "support"), ("support", "session"),
                             ("session", "faults"), ("faults", "parameters"),
                             ("faults", "monitor"), ("monitor", "parameters"),
                             ("parameters", "tests"), ("tests", "reports")):
            with self.subTest(f"{lower} {upper}"):
                self.include(f"src/{lower}/a.cpp", f"{upper}/b.h", f"src/{upper}/b.h")
                self.assert_finds(f"src/{lower}/a.cpp:1: up", f"src/{upper}/b.h")
                (self.root / f"src/{lower}/a.cpp").unlink()

    def test_the_program_stands_on_all_floors_and_under_no_floor(self):
        self.include("src/program.cpp", "reports/b.h", "src/reports/b.h")
        self.assert_clean()
        self.include("src/reports/a.cpp", "program.h", "src/program.h")
        self.assert_finds("src/reports/a.cpp:1: up")

    def test_no_core_file_includes_an_adapter(self):
        self.include("src/program.cpp", "adapters/qt/b.h", "src/adapters/qt/b.h")
        self.assert_finds("src/program.cpp:1: up")

    def test_adapters_include_the_core_but_not_one_another(self):
        self.include("src/adapters/qt/a.cpp", "support/b.h", "src/support/b.h")
        self.assert_clean()
        self.include("src/adapters/qt/c.cpp", "adapters/headless/d.h",
                     "src/adapters/headless/d.h")
        self.assert_finds("src/adapters/qt/c.cpp:1: up")

    def test_an_adapter_does_not_include_the_program(self):
        self.include("src/adapters/qt/a.cpp", "program.h", "src/program.h")
        self.assert_finds("src/adapters/qt/a.cpp:1: up")

    def test_main_knows_everybody_in_src(self):
        self.write("src/main.cpp", '#include "adapters/qt/a.h"\n#include "reports/b.h"\n')
        self.write("src/adapters/qt/a.h", "")
        self.write("src/reports/b.h", "")
        self.assert_clean()

    def test_no_floor_includes_a_root(self):
        self.include("src/reports/a.cpp", "desktop_program.h", "src/desktop_program.h")
        self.assert_finds("src/reports/a.cpp:1: up")
        self.include("src/reports/a.cpp", "vector")
        self.include("src/main.cpp", "desktop_program.h", "src/desktop_program.h")
        self.assert_clean()

    def test_only_the_benchs_window_uses_qt_and_the_programs_look(self):
        self.include("simulator/bench/a.cpp", "QWidget")
        self.include("simulator/bench/b.cpp", "adapters/qt/qt_style.h",
                     "src/adapters/qt/qt_style.h")
        self.include("simulator/bench/c.cpp", "simulator/bench/model/a.h",
                     "simulator/bench/model/a.h")
        self.assert_clean()
        self.include("simulator/bench/model/d.cpp", "QWidget")
        self.assert_finds("simulator/bench/model/d.cpp:1: toolkit")
        self.include("simulator/bench/model/d.cpp", "adapters/qt/qt_style.h",
                     "src/adapters/qt/qt_style.h")
        self.assert_finds("simulator/bench/model/d.cpp:1: up")
        self.include("simulator/bench/model/d.cpp", "vector")
        self.include("simulator/bench/e.cpp", "adapters/qt/b.h", "src/adapters/qt/b.h")
        self.assert_finds("simulator/bench/e.cpp:1: up")

    def test_nothing_in_src_includes_what_stands_beside_it(self):
        for name in ("src/session/a.cpp", "src/adapters/qt/a.cpp", "src/program.cpp",
                     "src/main.cpp"):
            for target in ("simulator/trailer/b.h", "simulator/operator/b.h", "tour/b.h",
                           "autotests/common/b.h", "benchmarks/b.h", "fuzz/b.h"):
                with self.subTest(f"{name} {target}"):
                    self.include(name, target, target)
                    self.assert_finds(f"{name}:1: up", target)
                    (self.root / name).unlink()

    def test_the_tour_stands_above_the_program_and_the_trailers_operator(self):
        self.write("tour/a.cpp", '#include "tour/b.h"\n#include "desktop_program.h"\n'
                   '#include "adapters/qt/c.h"\n#include "session/d.h"\n'
                   '#include "simulator/operator/e.h"\n#include <QApplication>\n'
                   '#include <dlfcn.h>\n')
        for name in ("tour/b.h", "src/desktop_program.h", "src/adapters/qt/c.h",
                     "src/session/d.h", "simulator/operator/e.h"):
            self.write(name, "")
        self.assert_clean()

    def test_the_tour_looks_into_no_trailer_and_takes_nothing_from_the_tests(self):
        for target in ("simulator/trailer/b.h", "simulator/library/b.h", "autotests/common/b.h"):
            with self.subTest(target):
                self.include("tour/a.cpp", target, target)
                self.assert_finds("tour/a.cpp:1: up", target)

    def test_the_simulator_includes_neither_tour_nor_tests(self):
        for folder in ("trailer", "library", "operator", "bench", "bench/model"):
            for target in ("tour/b.h", "autotests/common/b.h"):
                with self.subTest(f"{folder} {target}"):
                    self.include(f"simulator/{folder}/a.cpp", target, target)
                    self.assert_finds(f"simulator/{folder}/a.cpp:1: up", target)
                    (self.root / f"simulator/{folder}/a.cpp").unlink()

    def test_the_operator_reads_the_programs_screens_and_no_more(self):
        self.include("simulator/operator/a.cpp", "platform/forms.h", "src/platform/forms.h")
        self.assert_clean()
        self.include("simulator/operator/c.cpp", "tests/a.h", "src/tests/a.h")
        self.assert_finds("simulator/operator/c.cpp:1: up")
        self.include("simulator/operator/c.cpp", "vector")
        self.include("simulator/library/d.cpp", "platform/forms.h", "src/platform/forms.h")
        self.assert_finds("simulator/library/d.cpp:1: up")

    def test_the_model_of_the_trailer_includes_the_contract_alone(self):
        self.include("simulator/trailer/a.cpp", "session/ecu_data.h", "src/session/ecu_data.h")
        self.assert_clean()
        self.include("simulator/trailer/b.cpp", "session/connection.h", "src/session/connection.h")
        self.assert_finds("simulator/trailer/b.cpp:1: up")

    def test_the_model_of_the_trailer_takes_the_standard_library_alone(self):
        self.include("simulator/trailer/a.cpp", "unistd.h")
        self.assert_finds("simulator/trailer/a.cpp:1: toolkit")

    def test_the_library_stands_on_the_model_and_not_the_other_way_round(self):
        self.include("simulator/library/a.cpp", "simulator/trailer/b.h", "simulator/trailer/b.h")
        self.include("simulator/library/c.cpp", "unistd.h")
        self.assert_clean()
        self.include("simulator/trailer/d.cpp", "simulator/library/e.h", "simulator/library/e.h")
        self.assert_finds("simulator/trailer/d.cpp:1: up")

    def test_tests_include_everything(self):
        self.include("autotests/a/b_test.cpp", "simulator/trailer/b.h", "simulator/trailer/b.h")
        self.include("autotests/a/c_test.cpp", "gtest/gtest.h")
        self.include("autotests/a/d_test.cpp", "tour/b.h", "tour/b.h")
        self.assert_clean()

    def test_a_folder_on_no_floor_is_found(self):
        self.write("src/cellar/a.h", "")
        self.assert_finds("src/cellar/a.h:1: up", "no floor")

    def test_an_include_that_leads_nowhere_is_found(self):
        self.write("src/session/a.cpp", '#include "session/gone.h"\n')
        self.assert_finds("missing", "session/gone.h")

    def test_generated_windows_are_known(self):
        self.write("src/adapters/qt/a.cpp", '#include "ui_frmMain.h"\n#include "a.moc"\n')
        self.assert_clean()

    # Circles.

    def test_a_circle_is_found_once(self):
        self.write("src/support/a.h", '#include "support/b.h"\n')
        self.write("src/support/b.h", '#include "support/c.h"\n')
        self.write("src/support/c.h", '#include "support/a.h"\n')
        self.assert_finds("circle: src/support/a -> src/support/b -> src/support/c -> "
                          "src/support/a")

    def test_a_header_with_its_source_is_one_module(self):
        self.write("src/support/a.h", "")
        self.write("src/support/a.cpp", '#include "support/a.h"\n#include "support/b.h"\n')
        self.write("src/support/b.h", "")
        self.assert_clean()
        self.write("src/support/b.cpp", '#include "support/b.h"\n#include "support/a.h"\n')
        self.assert_finds("circle: src/support/a -> src/support/b -> src/support/a")

    def test_each_circle_is_found_by_itself(self):
        for folder in ("support", "session"):
            self.write(f"src/{folder}/a.h", f'#include "{folder}/b.h"\n')
            self.write(f"src/{folder}/b.h", f'#include "{folder}/a.h"\n')
        self.assertEqual(len(self.findings()), 2)

    def test_a_wider_circle_names_all_who_run_in_it(self):
        for name, to in (("a", "bc"), ("b", "a"), ("c", "a")):
            self.write(f"src/support/{name}.h",
                       "".join(f'#include "support/{other}.h"\n' for other in to))
        self.assert_finds("circle: src/support/a -> src/support/b -> src/support/a "
                          "(and src/support/c)")

    def test_a_permitted_circle_is_let_pass_and_no_wider_one(self):
        self.write("src/parameters/frmOVGParm1.cpp", '#include "parameters/frmOVGParm2.cpp"\n')
        self.write("src/parameters/frmOVGParm2.cpp", '#include "parameters/frmOVGParm1.cpp"\n')
        self.assert_clean()
        self.write("src/parameters/other.cpp", '#include "parameters/frmOVGParm1.cpp"\n')
        self.assert_clean()
        self.write("src/parameters/frmOVGParm2.cpp", '#include "parameters/other.cpp"\n')
        self.assert_finds("circle", "src/parameters/other")

    def test_two_roads_to_one_file_are_no_circle(self):
        self.write("src/support/a.h", '#include "support/b.h"\n#include "support/c.h"\n')
        self.write("src/support/b.h", '#include "support/c.h"\n')
        self.write("src/support/c.h", "")
        self.assert_clean()

    # Forms and their windows.

    def screen(self, header, *drawn, name="frmPage", before=""):
        self.write(f"src/tests/{name}.h", form(name, *header, before=before))
        self.write(f"src/tests/{name}.ui", ui(name, *drawn))

    def test_a_form_owns_what_its_window_draws(self):
        self.screen(
            ['TextBox txtSupply{*this, "txtSupply"};',
             'ControlArray<TextBox> txtSpeed{*this, "txtSpeed", 2};',
             'ControlArray<Label> lblRow{*this, "lblRow", {1, 4}};',
             'ToolButton tbrABS_exit{*this, "tbrABS", "exit"};',
             'OptionButton optA{*this, "optA", 3};',
             'Timer Timer1{*this, "Timer1"};'],
            "QLineEdit txtSupply", "QLineEdit txtSpeed_0", "QLineEdit txtSpeed_1",
            "QLabel lblRow_1", "QLabel lblRow_4", "QAction tbrABS_exit",
            "QRadioButton optA_3")
        self.assert_clean()

    def test_actions_are_controls(self):
        self.screen(['MenuItem mnuExit{*this, "mnuExit"};'])
        path = self.root / "src/tests/frmPage.ui"
        path.write_text(path.read_text().replace("<layout", '<action name="mnuExit"/><layout'))
        self.assert_clean()
        path.write_text(path.read_text().replace("<layout", '<action name="mnuHelp"/><layout'))
        self.assert_finds("frmPage does not own mnuHelp")

    def test_a_drawn_control_without_owner_is_found(self):
        self.screen([], "QLineEdit txtSupply")
        self.assert_finds("src/tests/frmPage.ui:1: ui", "does not own txtSupply")

    def test_a_control_that_is_not_drawn_is_found(self):
        self.screen(['TextBox txtSupply{*this, "txtSupply"};'])
        self.assert_finds("src/tests/frmPage.h:1: ui", "txtSupply is not drawn")

    def test_a_control_is_known_by_its_class_whatever_its_name(self):
        drawn = ("QLabel TirePic", "QLineEdit TireTxt", "QLineEdit textOrder",
                 "QPushButton StartButton", "QLabel bmpABS", "QTabBar tbsOptions",
                 "QGroupBox LeverLengthFrame", "QTableWidget w1", "QProgressBar w2",
                 "QRadioButton w3", "QCheckBox w4", "QMenu w5", "QPlainTextEdit w6")
        for one in drawn:
            with self.subTest(one):
                self.screen([], one)
                self.assert_finds("src/tests/frmPage.ui:1: ui",
                                  "does not own " + one.split(" ")[1])

    def test_a_widget_of_another_class_is_found(self):
        for one in ("QComboBox cboA", "QSpinBox txtA", "HomeMade thing"):
            with self.subTest(one):
                self.screen([], one)
                self.assert_finds("no widget of this program", one.split(" ")[0])

    def test_a_widget_shows_the_kinds_that_it_can_show(self):
        for kind, widget, fits in (
                ("Label", "QLabel", True), ("Picture", "QLabel", True),
                ("TextBox", "QLabel", False), ("TextBox", "QLineEdit", True),
                ("Button", "QCheckBox", False), ("OptionButton", "QRadioButton", True),
                ("OptionButton", "QCheckBox", False), ("Frame", "QWidget", True),
                ("Frame", "QToolBar", False), ("DataGrid", "QTableWidget", True)):
            with self.subTest(f"{kind} {widget}"):
                self.screen([f'{kind} x{{*this, "x"}};'], f"{widget} x")
                if fits:
                    self.assert_clean()
                else:
                    self.assert_finds(f"x is a {widget}, which shows no {kind}")

    def test_a_container_has_an_owner_or_none(self):
        self.screen([], "QWidget centre", "QFrame line", "QScrollArea area")
        self.assert_clean()
        self.screen(['Frame area{*this, "area"};'], "QScrollArea area")
        self.assert_clean()

    def test_a_gap_in_an_array_is_found(self):
        self.screen(['ControlArray<Label> lblRow{*this, "lblRow", 3};'],
                    "QLabel lblRow_0", "QLabel lblRow_2")
        self.assert_finds("lblRow_1 is not drawn")

    def test_a_control_in_a_comment_is_not_owned(self):
        self.screen(['// TextBox txtSupply{*this, "txtSupply"};'], "QLineEdit txtSupply")
        self.assert_finds("does not own txtSupply")

    def test_decorations_and_bars_have_no_owner(self):
        self.screen([], "QLabel lblSupply_caption", "QLabel staticArrow", "QGroupBox staticBox",
                    "QToolBar tbrABS", "QMenuBar menuBar", "QWidget centre")
        self.assert_clean()

    def test_a_decoration_has_no_words(self):
        path = self.root / "src/tests/frmPage.ui"
        for words, said in (("<string>Supply</string>", True), ("<string/>", False),
                            ('<string notr="true">-</string>', False)):
            with self.subTest(words):
                self.screen([], "QLabel lblSupply_caption")
                path.write_text(path.read_text().replace(
                    '_caption"/>', f'_caption"><property name="text">{words}</property></widget>'))
                if said:
                    self.assert_finds('nobody translates "Supply"')
                else:
                    self.assert_clean()

    def test_what_takes_input_is_no_decoration(self):
        for one in ("QLineEdit staticText", "QPushButton cmdStart_caption"):
            with self.subTest(one):
                self.screen([], one)
                self.assert_finds("does not own")

    def test_a_member_broken_over_lines_is_read(self):
        self.screen(['ControlArray<TextBox> txtSpeed{\n      *this, "txtSpeed",\n      {0,\n 1}};'],
                    "QLineEdit txtSpeed_0", "QLineEdit txtSpeed_1")
        self.assert_clean()

    def test_an_extent_may_be_a_constant_of_the_header(self):
        self.screen(['static constexpr int kWheels = 2;',
                     'ControlArray<TextBox> txtSpeed{*this, "txtSpeed", kWheels};'],
                    "QLineEdit txtSpeed_0", "QLineEdit txtSpeed_1")
        self.assert_clean()

    def test_an_extent_that_cannot_be_read_is_found(self):
        self.screen(['ControlArray<TextBox> txtSpeed{*this, "txtSpeed", kWheels};'],
                    "QLineEdit txtSpeed_0")
        self.assert_finds("extent of txtSpeed: kWheels")

    def test_the_controls_of_a_base_class_count(self):
        self.write("src/tests/test_form.h",
                   form("TestForm", 'Button cmdStart{*this, "cmdStart"};'))
        self.write("src/tests/frmPage.h",
                   form("frmPage", 'Button cmdExit{*this, "cmdExit"};', base="TestForm",
                        before='#include "tests/test_form.h"'))
        self.write("src/tests/frmPage.ui",
                   ui("frmPage", "QPushButton cmdStart", "QPushButton cmdExit"))
        self.assert_clean()

    def test_two_classes_in_one_header_keep_their_controls_apart(self):
        self.screen([], "QLineEdit txtSupply",
                    before='struct Other { TextBox txtSupply{*this, "txtSupply"}; };')
        self.assert_finds("does not own txtSupply")

    def test_names_that_stand_twice_are_found(self):
        self.screen(['TextBox txtA{*this, "txtA"};'], "QLineEdit txtA", "QLineEdit txtA")
        self.assert_finds("txtA is drawn twice")
        self.screen(['TextBox txtA{*this, "txtA"};', 'TextBox txtB{*this, "txtA"};'],
                    "QLineEdit txtA")
        self.assert_finds("txtA is declared twice")

    def test_a_form_without_window_and_a_window_without_form_are_found(self):
        self.write("src/tests/frmPage.h", form("frmPage"))
        self.assert_finds("no .ui file beside it")
        (self.root / "src/tests/frmPage.h").unlink()
        self.write("src/tests/frmPage.ui", ui("frmPage"))
        self.assert_finds("no class beside it")

    def test_the_window_carries_the_forms_name(self):
        self.write("src/tests/frmPage.h", form("frmPage"))
        self.write("src/tests/frmPage.ui", ui("frmOther"))
        self.assert_finds("the window is named frmOther")

    def test_a_broken_window_file_is_found(self):
        self.write("src/tests/frmPage.h", form("frmPage"))
        self.write("src/tests/frmPage.ui", "<ui>")
        self.assert_finds("cannot be read")

    # The kinds of controls, the ports, the budgets.

    KINDS = ("kTextBox", "kLabel", "kFrame", "kButton", "kOptionButton", "kCheckBox", "kPicture",
             "kProgressBar", "kTimer", "kMenuItem", "kToolButton", "kDataGrid", "kTabStrip")

    def test_the_kinds_of_controls_are_thirteen(self):
        def write(kinds):
            self.write("src/platform/controls.h",
                       "enum class ControlKind {\n  " + ",\n  ".join(kinds) + ",\n};\n")
        write(self.KINDS)
        self.assert_clean()
        write(self.KINDS + ("kSlider",))
        self.assert_finds("src/platform/controls.h:1: kinds: Slider is new")
        write(self.KINDS[1:])
        self.assert_finds("src/platform/controls.h:1: kinds: TextBox is gone")

    PORT = "class Clock {\n public:\n  virtual void Sleep(int ms) = 0;\n};\n"

    def ports(self, *rows):
        self.write("ARCHITECTURE.md", "# House\n\n| `x.h` | another table |\n|---|---|\n\n"
                   "## Ports and adapters\n\nWords.\n\n| Port | What | Linux | Tests |\n"
                   "|---|---|---|---|\n" + "".join(f"| {row} |\n" for row in rows) +
                   "\n## Next\n\n| a | b |\n|---|---|\n| `c` | d |\n")

    def clocks(self):
        self.write("src/platform/clock.h", self.PORT)
        self.write("src/adapters/qt/qt_clock.h", "class QtClock : public Clock {};\n")
        self.write("autotests/a_test.cpp",
                   "class Stopped : public Base, public Clock {};\nclass Other {};\n")

    def test_a_true_table_of_ports_is_let_pass(self):
        self.clocks()
        self.ports("`platform/clock.h` | sleeps | `QtClock`, real | `Stopped`")
        self.assert_clean()

    def test_a_cell_of_the_table_of_ports_that_names_no_class_is_found(self):
        self.clocks()
        self.ports("`platform/clock.h` | sleeps | `QtClock` | not yet")
        self.assert_finds("ARCHITECTURE.md:12: ports", "platform/clock.h")

    def test_a_port_or_a_side_that_is_not_there_is_found(self):
        self.clocks()
        self.ports("`platform/clock.h` | sleeps | `QtClock` | `Stopped`",
                   "`platform/gone.h` | nothing | `QtClock` | `Stopped`")
        self.assert_finds("ARCHITECTURE.md:13: ports", "platform/gone.h")
        for side in ("Gone", "Other"):
            with self.subTest(side):
                self.ports(f"`platform/clock.h` | sleeps | `QtClock` | `Stopped`, `{side}`")
                self.assert_finds("ARCHITECTURE.md:12: ports", f"no class {side}")
        self.ports("`platform/clock.h` | sleeps | Qt | `Stopped`")
        self.assert_finds('ports: "Qt" names no class')

    def test_a_port_that_the_table_lacks_is_found(self):
        self.clocks()
        self.ports()
        self.assert_finds("src/platform/clock.h:1: ports")

    def test_private_members_end_in_an_underscore(self):
        good = ("  bool bRestarting_ = false;", "  std::array<int, 4> nAxlePos_{};",
                "  static constexpr int kRows = 3;", "  friend class Form;", "  void OnTick();",
                "  struct Row {\n    int number = 0;\n  };", "  using Name = std::string;",
                "  Label& label_;", " public:\n  int open = 0;")
        for member in good:
            with self.subTest(member):
                self.write("src/session/a.h", "class A {\n private:\n" + member + "\n};\n")
                self.assert_clean()
        for member in ("  bool bRestarting = false;", "  std::array<int, 4> nAxlePos{};",
                       "  Label& label;", "  std::map<int, std::string> rows;"):
            with self.subTest(member):
                self.write("src/session/a.h", "class A {\n private:\n" + member + "\n};\n")
                self.assert_finds("src/session/a.h:1: names", "of A lacks its _")

    def test_a_folder_keeps_to_its_budget(self):
        most = layer_check.BUDGETS["src/platform"]
        self.write("src/platform/a.cpp", "\n" * (most - 1))  # forms.h has a line, too
        self.assert_clean()
        self.write("src/platform/b.h", "\n")
        self.assert_finds("src/platform:1: budget", str(most + 1))

    # Words.

    def test_words_that_must_not_stand_are_found(self):
        for line in ("see /" + "work/x", "/" + "root/x", "// TO" + "DO: later",
                     "<" * 7 + " HEAD"):
            with self.subTest(line):
                self.write("README.md", "fine\n" + line + "\n")
                self.assert_finds("README.md:2: word")

    def test_ordinary_words_may_stand(self):
        self.write("README.md", "/workshop/ homework/ todo list ~/.config /home/me/\n")
        self.assert_clean()

    def test_pictures_and_builds_are_not_read(self):
        self.write("build/x.txt", "/" + "work/x\n")
        (self.root / "a.txt").write_bytes(b"\0/" + b"work/x\n")
        self.assert_clean()


class ToolkitNameTest(unittest.TestCase):
    def test_names_of_qt_are_told_from_others(self):
        for header in ("QString", "QtCore/QString", "QtTest", "qglobal.h", "qt.h"):
            self.assertTrue(layer_check.is_qt(header), header)
        for header in ("queue", "windows.h", "platform/clock.h", "query/a.h"):
            self.assertFalse(layer_check.is_qt(header), header)


if __name__ == "__main__":
    unittest.main()
