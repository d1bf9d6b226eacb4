#!/usr/bin/env python3
"""Watches what no compiler watches: the floors of the source tree and the words in it.

    tools/layer_check.py [root]        prints one line a finding; ends with 1 when there is one
    tools/layer_check.py --drawn       prints what the .ui files draw, one widget or action a line

The floors, the lowest first; a file includes its own folder and the floors below it:

    platform    src/platform/*         ports and controls
    support     src/support
    session     src/session
    faults parameters monitor          one floor; parameters may use faults, nothing else crosses
    tests       src/tests
    reports     src/reports
    program     src/program.*          composes records and forms from ports
    adapters    src/adapters/{qt,windows,posix,headless}   use any floor of the core but program,
                                       and never one another
    roots       src/main.cpp, and src/desktop_program.*, which makes the adapters for it and for
                the tour; they know everybody in src/, and nothing in src/ includes them

Beside src/ stand simulator/, which shares the contract with it, and above both tour/.

What is checked, with the word that a finding begins with:

toolkit   The core (all of src/ but adapters and roots) includes the standard library alone. The Qt
          adapter adds Qt, the other adapters what their platform has, but no Qt; the headless
          adapter adds nothing.
up        An include points down. Nothing in src/ includes what stands beside it. tour/ includes
          src/, and of simulator/ the trailer's operator (simulator/operator); but for tests, nobody
          includes tour/, and nobody but they includes autotests/. simulator/trailer includes itself, the
          standard library and src/session/{ecu_data,lorimet32}.h; the other folders of simulator/
          add one another and their platform; simulator/operator also reads the program's screens
          (src/platform). Only the window in simulator/bench may use Qt, not the model under it, and
          it shares the program's look (src/adapters/qt/qt_style.h).
missing   An include in double quotes names a file of the project (but for Qt's generated ui_*.h and
          *.moc).
circle    No module includes itself by way of others; a header with its source is one module. A
          circle within a set of PERMITTED_CIRCLES is let pass.
ui        src/*/frmX.ui and src/*/frmX.h own the same controls, each of a kind that its widget can
          show. On the side of the .ui, a widget is a control by its class, as WIDGETS says; a class
          that it does not list is none of this program's. Exempt are decorations, which no code
          touches: labels, frames and group boxes whose names begin with `static` or end in
          `_caption`; nobody translates a text of theirs, so they have none. On the side of the header, a control is a member of one of these forms, in the
          form's class or in a class of the project that it derives from:
              TextBox txtSupply{*this, "txtSupply"};
              TextBox txtSupply{*this, "txtSupply", 2};            item txtSupply_2
              ControlArray<TextBox> txtSpeed{*this, "txtSpeed", 6};          txtSpeed_0 to _5
              ControlArray<MenuItem> mnuABS{*this, "mnuABS", {0, 1, 6}};     mnuABS_0, _1, _6
              ToolButton tbrABS_exit{*this, "tbrABS", "exit"};               tbrABS_exit
          A count may be a constexpr int of the same header. Timers have no widget. The window
          carries the form's name.
kinds     The kinds of controls are the thirteen of KINDS. A screen that seems to need another one
          is made of these.
ports     The table of ports in ARCHITECTURE.md is true: its first column names a header of src/, and
          each further column, but for the one that says what the port is, at least one class that
          derives from a class of that header, or says "not yet". Every header of src/platform that
          declares an interface is in the table.
names     A private member of a class ends in `_`, one with a required name as well: `bRestarting_`.
budget    A folder of BUDGETS has no more lines than it says. What belongs to the toolkit is left to
          the toolkit: before a budget grows, see what can go.
word      No line holds what FORBIDDEN lists.
"""

import re
import subprocess
import sys
import xml.etree.ElementTree
from pathlib import Path

FLOORS = {
    "platform": 0,
    "support": 1,
    "session": 2,
    "faults": 3,
    "parameters": 3,
    "monitor": 3,
    "tests": 4,
    "reports": 5,
    "program": 6,
}
ADAPTERS = ("qt", "windows", "posix", "headless")
ACROSS = {("parameters", "faults")}
ROOTS = ("main.cpp", "desktop_program.h", "desktop_program.cpp")
SIMULATOR_MAY_USE = {"src/session/ecu_data.h", "src/session/lorimet32.h"}
SOURCE_FOLDERS = ("src", "simulator", "tour", "autotests", "benchmarks", "fuzz")

STANDARD = set("""
algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts
condition_variable coroutine deque exception execution filesystem format forward_list fstream
functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list
locale map memory memory_resource mutex new numbers numeric optional ostream queue random ranges
ratio regex scoped_allocator semaphore set shared_mutex source_location span sstream stack
stdexcept stop_token streambuf string string_view syncstream system_error thread tuple type_traits
typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef
cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype
assert.h ctype.h errno.h float.h limits.h math.h stddef.h stdint.h stdio.h stdlib.h string.h time.h
""".split())

# Modules that may include one another in a circle, and why.
PERMITTED_CIRCLES = (
    # Each page of the wizard leads to others, forth and back.
    {"src/parameters/frmGIOSelection", "src/parameters/frmOVGParm1",
     "src/parameters/frmOVGParm2", "src/parameters/frmOVGParm3"},
)

KINDS = ("TextBox", "Label", "Frame", "Button", "OptionButton", "CheckBox", "Picture",
         "ProgressBar", "Timer", "MenuItem", "ToolButton", "DataGrid", "TabStrip")
ANY_KIND = "|".join(KINDS)
# The widgets of a .ui file, and which kinds of control each can show.
WIDGETS = {
    "QLineEdit": ("TextBox",),
    "QPlainTextEdit": ("TextBox",),
    "QTextEdit": ("TextBox",),
    "QLabel": ("Label", "Picture"),
    "QGroupBox": ("Frame",),
    "QPushButton": ("Button",),
    "QToolButton": ("Button",),
    "QRadioButton": ("OptionButton",),
    "QCheckBox": ("CheckBox",),
    "QProgressBar": ("ProgressBar",),
    "QTableWidget": ("DataGrid",),
    "QTabBar": ("TabStrip",),
    "QMenu": ("MenuItem",),
    "QAction": ("MenuItem", "ToolButton"),
}
# Widgets that hold others: a control where the form's class owns it, nothing otherwise.
CONTAINERS = {
    "QWidget": ("Frame", "Picture"),
    "QFrame": ("Frame", "Picture"),
    "QScrollArea": ("Frame",),
    "QStackedWidget": ("Frame",),
    "QToolBar": (),
    "QMenuBar": (),
}
DECORATION = re.compile(r"static|.*_caption$")
DECORATIONS = ("QLabel", "QGroupBox", "QFrame")

# The most lines that a folder's headers and sources may have.
BUDGETS = {
    "src/platform": 2200,
    "src/adapters/qt": 4500,
    "src/adapters/posix": 2500,
    "src/adapters/windows": 1800,
    "src/adapters/headless": 1900,
}

# Patterns are written so that this file does not match itself.
FORBIDDEN = (
    (re.compile(r"/wor[k]/|/roo[t]/|/tmp/build[-]"), "a path of one machine"),
    (re.compile(r"\b[A-Z]:\\Users\\[^<%\\]"), "a path of one machine"),
    (re.compile(r"\b(TOD[O]|FIXM[E])\b"), "work left undone"),
    (re.compile(r"^(<{7}|>{7}) "), "a merge left undone"),
)
TEXT_SUFFIXES = {
    "", ".h", ".cpp", ".ui", ".ts", ".py", ".md", ".txt", ".cmake", ".json", ".html", ".css",
    ".svg", ".yml", ".sh", ".def", ".rc", ".in", ".scenario", ".supp",
}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)


def without_comments(text):
    """The text with comments blanked, lines kept."""
    pattern = re.compile(r'"(?:\\.|[^"\\\n])*"|//[^\n]*|/\*.*?\*/', re.DOTALL)
    return pattern.sub(
        lambda m: m[0] if m[0].startswith('"') else re.sub(r"[^\n]", " ", m[0]), text)


def is_qt(header):
    return re.match(r"Q[A-Z]|Qt[A-Z]\w*(/|$)|q[a-z]+\.h$", header) is not None


class Tree:
    """The source files of a project and what each includes."""

    def __init__(self, root):
        self.root = Path(root)
        self.text = {}
        self.includes = {}  # file -> [(line, quoted, header)]
        for folder in SOURCE_FOLDERS:
            for path in sorted((self.root / folder).rglob("*")):
                if path.suffix in (".h", ".cpp") and path.is_file():
                    name = path.relative_to(self.root).as_posix()
                    text = without_comments(path.read_text(encoding="utf-8", errors="replace"))
                    self.text[name] = text
                    self.includes[name] = [
                        (text.count("\n", 0, m.start(1 if m[1] else 2)) + 1, bool(m[1]),
                         m[1] or m[2]) for m in INCLUDE.finditer(text)]

    def resolve(self, name, header):
        """The file that a quoted include names, or None."""
        for base in (Path(name).parent.as_posix() + "/", "src/", ""):
            candidate = base + header
            if candidate in self.text or (self.root / candidate).is_file():
                return Path(candidate).as_posix()
        return None


def place(name):
    """(kind, folder) of a file: kind is core, adapter, root, simulator, tour or other."""
    parts = name.split("/")
    if parts[0] == "tour":
        return "tour", ""
    if parts[0] == "simulator":
        return "simulator", parts[1] if len(parts) > 2 else ""
    if parts[0] != "src":
        return "other", parts[0]
    if len(parts) == 2:
        return ("root", "") if parts[1] in ROOTS else ("core", parts[1].split(".")[0])
    if parts[1] == "adapters" and len(parts) > 3:
        return "adapter", parts[2]
    return "core", parts[1]


def is_bench_window(name):
    return name.startswith("simulator/bench/") and not name.startswith("simulator/bench/model/")


def check_toolkit(tree):
    for name, includes in tree.includes.items():
        kind, folder = place(name)
        for line, quoted, header in includes:
            if header in STANDARD or (quoted and not is_qt(header)):
                continue
            if kind == "core":
                allowed = False
            elif kind == "adapter":
                allowed = {"qt": is_qt(header), "headless": False}.get(folder, not is_qt(header))
            elif kind == "simulator":
                allowed = folder != "trailer" and (is_bench_window(name) or not is_qt(header))
            else:
                allowed = True
            if not allowed:
                yield f"{name}:{line}: toolkit: <{header}> has no place in {folder or kind}"


def may_include(name, target):
    kind, folder = place(name)
    target_kind, target_folder = place(target)
    if kind == "other":
        return True
    if kind == "tour":
        return (target_kind not in ("simulator", "other") or
                (target_kind, target_folder) == ("simulator", "operator"))
    if kind == "root":
        return target_kind in ("core", "adapter", "root")
    if kind == "simulator":
        if target_kind == "simulator":
            return folder != "trailer" or target_folder == "trailer"
        return (target in SIMULATOR_MAY_USE or
                (folder, target_folder) == ("operator", "platform") or
                (is_bench_window(name) and target == "src/adapters/qt/qt_style.h"))
    if kind == "adapter":
        if target_kind == "adapter":
            return folder == target_folder
        return target_kind == "core" and target_folder != "program"
    if target_kind != "core":
        return False
    if folder not in FLOORS or target_folder not in FLOORS:
        return folder == target_folder
    return (folder == target_folder or FLOORS[target_folder] < FLOORS[folder] or
            (folder, target_folder) in ACROSS)


def check_up(tree):
    for name, includes in tree.includes.items():
        kind, folder = place(name)
        if kind == "core" and folder not in FLOORS:
            yield f"{name}:1: up: {folder} is on no floor"
        for line, quoted, header in includes:
            if not quoted:
                continue
            target = tree.resolve(name, header)
            if target is None:
                if not re.match(r"(ui_\w+\.h|.*\.moc)$", header) or kind == "core":
                    yield f"{name}:{line}: missing: \"{header}\" is no file of the project"
            elif not may_include(name, target):
                yield f"{name}:{line}: up: {name} must not include {target}"


def module(name):
    return name.rsplit(".", 1)[0]


def modules(tree):
    """Module -> the modules that it includes."""
    graph = {}
    for name, includes in tree.includes.items():
        mine = graph.setdefault(module(name), set())
        for _, quoted, header in includes:
            target = tree.resolve(name, header) if quoted else None
            if target and module(target) != module(name):
                mine.add(module(target))
    return graph


def reached_from(graph, start):
    seen, stack = set(), list(graph.get(start, ()))
    while stack:
        name = stack.pop()
        if name not in seen:
            seen.add(name)
            stack += graph.get(name, ())
    return seen


def circles(graph):
    """The largest sets of modules in which each reaches each other, sorted."""
    reached = {name: reached_from(graph, name) for name in graph}
    found = {frozenset(other for other in reached[name] if name in reached.get(other, ()))
             for name in graph if name in reached[name]}
    return sorted(sorted(circle) for circle in found)


def road(graph, circle):
    """One way round a circle, from its first module back to it."""
    start, trails, seen = circle[0], [[circle[0]]], set()
    for trail in trails:
        for name in sorted(graph[trail[-1]]):
            if name == start:
                return trail + [start]
            if name in circle and name not in seen:
                seen.add(name)
                trails.append(trail + [name])
    return circle


def check_circles(tree):
    graph = modules(tree)
    for circle in circles(graph):
        if not any(set(circle) <= permitted for permitted in PERMITTED_CIRCLES):
            others = sorted(set(circle) - set(road(graph, circle)))
            more = f" (and {', '.join(others)})" if others else ""
            yield f"{circle[0]}:1: circle: {' -> '.join(road(graph, circle))}{more}"


def class_bodies(text):
    """(class name, its bases, its body) for each class in a text without comments."""
    for m in re.finditer(r"\b(?:class|struct)\s+(\w+)\s*(?:final\s*)?(?::([^;{]*))?\{", text):
        depth, end = 1, m.end()
        while depth and end < len(text):
            depth += {"{": 1, "}": -1}.get(text[end], 0)
            end += 1
        bases = re.findall(r"(\w+)\s*(?:,|$)", (m[2] or "").strip())
        yield m[1], bases, text[m.end():end]


ARRAY = re.compile(
    r"\bControlArray<\s*(" + ANY_KIND + r")\s*>\s+\w+\s*\{\s*\*this\s*,\s*\"([^\"]+)\"\s*,"
    r"\s*(\{[^}]*\}|\w+)\s*\}")
SINGLE = re.compile(
    r"\b(" + ANY_KIND + r")\s+\w+\s*\{\s*\*this\s*,\s*\"([^\"]+)\"\s*(?:,\s*(\"[^\"]*\"|\w+)\s*)?\}")


def number(word, text):
    if re.fullmatch(r"\d+", word):
        return int(word)
    m = re.search(r"\bconstexpr\s+(?:int|std::size_t)\s+" + re.escape(word) + r"\s*[={]\s*(\d+)",
                  text)
    return int(m[1]) if m else None


def declared_controls(body, text):
    """((name, kind) of each control with a widget, words that are no number) of one class."""
    names, unknown = [], []
    for kind, name, extent in ARRAY.findall(body):
        if extent.startswith("{"):
            words = [w.strip() for w in extent[1:-1].split(",") if w.strip()]
            indices = [number(w, text) for w in words]
        else:
            count = number(extent, text)
            indices = [None] if count is None else list(range(count))
        if None in indices:
            unknown.append(f"{name}: {extent}")
        elif kind != "Timer":
            names += [(f"{name}_{i}", kind) for i in indices]
    for kind, name, extra in SINGLE.findall(body):
        if kind == "Timer":
            continue
        if not extra:
            names.append((name, kind))
        elif extra.startswith('"'):
            names.append((f"{name}_{extra[1:-1]}", kind))
        elif number(extra, text) is None:
            unknown.append(f"{name}: {extra}")
        else:
            names.append((f"{name}_{number(extra, text)}", kind))
    return names, unknown


def controls_of_form(tree, header):
    """((name, kind) of the controls, words that are no number) of the form in a header, its base
    classes' included."""
    form = Path(header).stem
    names, unknown, seen = [], [], set()

    def collect(class_name, file):
        if (class_name, file) in seen:
            return
        seen.add((class_name, file))
        text = tree.text.get(file, "")
        for name, bases, body in class_bodies(text):
            if name == class_name:
                more, strange = declared_controls(body, text)
                names.extend(more)
                unknown.extend(strange)
                for base in bases:
                    for origin in reachable(tree, file):
                        collect(base, origin)

    collect(form, header)
    return names, unknown


def reachable(tree, file):
    seen, stack = set(), [file]
    while stack:
        name = stack.pop()
        if name in seen:
            continue
        seen.add(name)
        for _, quoted, header in tree.includes.get(name, ()):
            target = tree.resolve(name, header) if quoted else None
            if target:
                stack.append(target)
    return sorted(seen)


def drawn_widgets(path):
    """(the window's name, (name, class) of each widget and action inside it) of a .ui file."""
    top = xml.etree.ElementTree.parse(path).getroot().find("widget")
    elements = [e for e in top.iter() if e.tag in ("widget", "action") and e is not top]
    return top.get("name"), [
        (e.get("name", ""), e.get("class", "QAction" if e.tag == "action" else ""))
        for e in elements]


def decorations_with_texts(path):
    """The decorations that show words: a form translates its controls' texts and no others."""
    for element in xml.etree.ElementTree.parse(path).getroot().iter("widget"):
        name = element.get("name", "")
        if element.get("class") not in DECORATIONS or not DECORATION.match(name):
            continue
        for string in element.findall("property/string"):
            if string.text and string.get("notr") != "true":
                yield name, string.text


def must_be_owned(name, widget):
    return widget in WIDGETS and not (widget in DECORATIONS and DECORATION.match(name))


def check_ui(tree):
    forms = {p.relative_to(tree.root).as_posix() for p in (tree.root / "src").glob("*/frm*.ui")}
    for header in sorted(tree.text):
        if re.match(r"src/\w+/frm\w+\.h$", header) and header[:-1] + "ui" not in forms:
            yield f"{header}:1: ui: the form has no .ui file beside it"
    for ui in sorted(forms):
        header = ui[:-2] + "h"
        if header not in tree.text:
            yield f"{ui}:1: ui: the form has no class beside it"
            continue
        try:
            window, drawn = drawn_widgets(tree.root / ui)
        except (xml.etree.ElementTree.ParseError, AttributeError) as error:
            yield f"{ui}:1: ui: cannot be read: {error}"
            continue
        if window != Path(ui).stem:
            yield f"{ui}:1: ui: the window is named {window}"
        for name, text in decorations_with_texts(tree.root / ui):
            yield f'{ui}:1: ui: nobody translates "{text}" of the decoration {name}'
        declared, unknown = controls_of_form(tree, header)
        for word in unknown:
            yield f"{header}:1: ui: the extent of {word} is no number that stands in this header"
        yield from compare_ui(ui, header, drawn, declared,
                              tuple(word.split(":")[0] + "_" for word in unknown))


def twice(names):
    return sorted({n for n in names if names.count(n) > 1})


def compare_ui(ui, header, drawn, declared, unread):
    """`unread` are the beginnings of names that the header may declare beyond `declared`."""
    for name in twice([name for name, _ in declared]):
        yield f"{header}:1: ui: {name} is declared twice"
    for name in twice([name for name, _ in drawn]):
        yield f"{ui}:1: ui: {name} is drawn twice"
    kinds, widgets = dict(declared), dict(drawn)
    for name, widget in sorted(set(drawn)):
        if widget not in WIDGETS and widget not in CONTAINERS:
            yield f"{ui}:1: ui: {name} is a {widget}, which is no widget of this program"
        elif name in kinds:
            if kinds[name] not in WIDGETS.get(widget, CONTAINERS.get(widget)):
                yield f"{ui}:1: ui: {name} is a {widget}, which shows no {kinds[name]}"
        elif must_be_owned(name, widget) and not (unread and name.startswith(unread)):
            yield f"{ui}:1: ui: {Path(ui).stem} does not own {name}"
    for name in sorted(set(kinds) - set(widgets)):
        yield f"{header}:1: ui: {name} is not drawn in the .ui file"


def check_kinds(tree):
    file = "src/platform/controls.h"
    m = re.search(r"\benum class ControlKind\s*\{([^}]*)\}", tree.text.get(file, ""))
    if m:
        kinds = re.findall(r"\bk(\w+)", m[1])
        for kind in sorted(set(kinds) ^ set(KINDS)):
            yield f"{file}:1: kinds: {kind} is {'new' if kind in kinds else 'gone'}"


def classes_of(tree, file):
    """Class name -> its bases, of one file."""
    return {name: bases for name, bases, _ in class_bodies(tree.text.get(file, ""))}


def table_rows(text, heading):
    """(line, cells) of the first table below a heading, its two head lines left out."""
    rows, inside = [], False
    for line, row in enumerate(text.splitlines(), 1):
        if row.startswith("#"):
            inside = row.lstrip("# ") == heading
        elif inside and row.startswith("|"):
            rows.append((line, [cell.strip() for cell in row.strip("|").split("|")]))
    return rows[2:]


def check_ports(tree):
    page = tree.root / "ARCHITECTURE.md"
    if not page.is_file():
        return
    bases = {}
    for file in tree.text:
        for name, more in classes_of(tree, file).items():
            bases.setdefault(name, set()).update(more)
    named = set()
    for line, cells in table_rows(page.read_text(encoding="utf-8"), "Ports and adapters"):
        here = f"ARCHITECTURE.md:{line}: ports:"
        m = re.fullmatch(r"`([\w/]+\.h)`", cells[0])
        header = "src/" + m[1] if m else ""
        if header not in tree.text:
            yield f"{here} {cells[0]} is no header of src/"
            continue
        named.add(header)
        ports = set(classes_of(tree, header))
        for cell in cells[2:]:
            sides = re.findall(r"`(\w+)`", cell)
            if not sides:
                yield f"{here} \"{cell}\" names no class for {cells[0]}"
            for side in sides:
                if not bases.get(side, set()) & ports:
                    yield f"{here} no class {side} derives from a class of {cells[0]}"
    for file, text in sorted(tree.text.items()):
        if (re.match(r"src/platform/\w+\.h$", file) and file not in named and
                re.search(r"\bvirtual\b[^;{]*=\s*0\s*;", text)):
            yield f"{file}:1: ports: the table of ports in ARCHITECTURE.md lacks it"


def private_members(body):
    """The names of the private data members in the body of a class, as far as each has a line."""
    depth, private = 0, True
    for line in body.splitlines():
        if depth == 0:
            m = re.match(r"\s*(public|protected|private)\s*:", line)
            if m:
                private = m[1] == "private"
            m = re.match(r"\s+(?!\s|using|friend|static|constexpr|return|typedef|enum|struct|class)"
                         r"[\w:<>,*& ]+[\w>*&] (\w+)(\[\w+\])?(\{.*\}| = [^()]*)?;", line)
            if private and m:
                yield m[1]
        depth += line.count("{") - line.count("}")


def check_names(tree):
    for file, text in sorted(tree.text.items()):
        if not file.startswith(("src/", "simulator/", "tour/")):
            continue
        for m in re.finditer(r"\bclass\s+(\w+)[^;{]*\{", text):
            depth, end = 1, m.end()
            while depth and end < len(text):
                depth += {"{": 1, "}": -1}.get(text[end], 0)
                end += 1
            for name in private_members(text[m.end():end - 1]):
                if not name.endswith("_"):
                    yield f"{file}:1: names: the private member {name} of {m[1]} lacks its _"


def lines_of(tree, folder):
    return sum(len((tree.root / name).read_bytes().splitlines()) for name in tree.text
               if name.rpartition("/")[0] == folder)


def check_budgets(tree):
    for folder, most in BUDGETS.items():
        lines = lines_of(tree, folder)
        if lines > most:
            yield f"{folder}:1: budget: {lines} lines, and {most} are allowed"


def project_files(root):
    """The files that belong to the project, as the version control sees them where there is one."""
    listing = subprocess.run(
        ["git", "-C", str(root), "ls-files", "-co", "--exclude-standard", "-z"],
        capture_output=True, check=False)
    if listing.returncode == 0 and (root / ".git").exists():
        names = listing.stdout.decode("utf-8", "replace").split("\0")
        paths = [root / name for name in names if name]
    else:
        paths = [p for p in root.rglob("*")
                 if not {".git", "build"} & set(p.relative_to(root).parts)]
    return sorted(p for p in set(paths) if p.suffix in TEXT_SUFFIXES and p.is_file())


def check_words(root):
    for path in project_files(root):
        text = path.read_bytes()
        if b"\0" in text:
            continue
        for row, line in enumerate(text.decode("utf-8", "replace").splitlines(), 1):
            for pattern, reason in FORBIDDEN:
                m = pattern.search(line)
                if m:
                    yield f"{path.relative_to(root)}:{row}: word: \"{m[0]}\" is {reason}"


def findings(root):
    tree = Tree(root)
    result = []
    for check in (check_toolkit, check_up, check_circles, check_ui, check_kinds, check_ports,
                  check_names, check_budgets):
        result += check(tree)
    result += check_words(Path(root))
    return result


def print_drawn(root):
    for path in sorted((root / "src").glob("*/*.ui"), key=lambda p: p.stem):
        for name, widget in sorted(drawn_widgets(path)[1]):
            print(path.stem, widget, name)


def main(arguments):
    root = Path(__file__).resolve().parent.parent
    if arguments == ["--drawn"]:
        print_drawn(root)
        return 0
    if arguments:
        root = Path(arguments[0])
    result = findings(root)
    for finding in result:
        print(finding)
    tree = Tree(root)
    print("lines: " + ", ".join(f"{folder} {lines_of(tree, folder)} of {most}"
                                for folder, most in BUDGETS.items()))
    if result:
        print(f"layer check: {len(result)} finding(s)")
        return 1
    print("layer check: clean")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
