#!/usr/bin/env python3
"""Installs a build under a prefix of its own and starts the program and the bench from there.

    tools/install_test.py <build folder>

Both run on the offscreen platform: the program until it has loaded the link library that was
installed beside it, and once more until it has loaded one that LORIMET32 names; the bench until it
stands for its trailer. They are ended then, and as well when that takes too long.
"""

import configparser
import os
import shutil
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree
from pathlib import Path

PATIENCE = 60  # seconds
EXPECTED = (
    "bin/lorimet",
    "bin/libLorimet32.so",
    "bin/lorimet_bench_window",
    "share/norvick-lorimet/help/en/index.html",
    "share/norvick-lorimet/help/fr/index.html",
    "share/norvick-lorimet/help/es/index.html",
    "share/norvick-lorimet/help/pictures/exit.png",
    "share/norvick-lorimet/scenarios/healthy_4s2m.scenario",
    "share/icons/hicolor/scalable/apps/norvick-lorimet.svg",
)
# The entry of the desktop's menu, and what a software centre reads.
PROGRAMS = {
    "norvick-lorimet": "com.norvick.Lorimet",
    "norvick-lorimet-bench": "com.norvick.LorimetBench",
}


def wrong_with_entry(prefix, name):
    """What is wrong with an entry of the menu and the command and the icon that it names."""
    path = prefix / f"share/applications/{name}.desktop"
    parser = configparser.RawConfigParser(delimiters=("=",), strict=True)
    parser.optionxform = str
    if not parser.read(path, encoding="utf-8"):
        return [f"{path.name} is not installed"]
    entry = parser["Desktop Entry"]
    wrong = [f"{path.name} lacks {key}" for key in
             ("Type", "Name", "Exec", "Icon", "Categories", "GenericName[fr]", "GenericName[es]",
              "Comment[fr]", "Comment[es]") if not entry.get(key)]
    if not os.access(prefix / "bin" / entry["Exec"].split()[0], os.X_OK):
        wrong.append(f"{path.name} starts {entry['Exec']}, which is not installed")
    for folder, suffix in (("48x48", "png"), ("64x64", "png"), ("scalable", "svg")):
        icon = f"share/icons/hicolor/{folder}/apps/{entry['Icon']}.{suffix}"
        if not (prefix / icon).is_file():
            wrong.append(f"{path.name} names an icon without {icon}")
    return wrong


def wrong_with_metainfo(prefix, name, identity):
    path = prefix / f"share/metainfo/{identity}.metainfo.xml"
    if not path.is_file():
        return [f"{path.name} is not installed"]
    top = xml.etree.ElementTree.parse(path).getroot()
    wrong = []
    if top.findtext("id") != identity or top.findtext("launchable") != f"{name}.desktop":
        wrong.append(f"{path.name} tells of another program")
    if not os.access(prefix / "bin" / top.findtext("provides/binary", ""), os.X_OK):
        wrong.append(f"{path.name} names a command that is not installed")
    languages = [e.get("{http://www.w3.org/XML/1998/namespace}lang") for e in top.iter("summary")]
    if sorted(filter(None, languages)) != ["es", "fr"]:
        wrong.append(f"{path.name} does not speak all languages")
    return wrong


def wrong_with_files(prefix):
    wrong = [f"{name} is not installed" for name in EXPECTED if not (prefix / name).is_file()]
    for name, identity in PROGRAMS.items():
        wrong += wrong_with_entry(prefix, name) + wrong_with_metainfo(prefix, name, identity)
    return wrong


def environment(home):
    keep = {name: value for name, value in os.environ.items()
            if not name.startswith(("LORIMET32", "XDG_"))}
    folders = {name: str(home / name.lower()) for name in
               ("XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME")}
    for folder in folders.values():
        os.mkdir(folder, 0o700)
    return {**keep, **folders, "HOME": str(home), "LORIMET32_STATE": "none",
            "QT_QPA_PLATFORM": "offscreen"}


def runs(command, variables, there):
    """What is wrong with a command that is ended as soon as there(its process) is true."""
    process = subprocess.Popen([str(command)], env=variables, cwd=variables["HOME"],
                               stdin=subprocess.DEVNULL)
    try:
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline and process.poll() is None:
            if there(process):
                return []
            time.sleep(0.05)
        return [f"{command} did not do what it is to do; it ended with {process.poll()}"]
    finally:
        process.kill()
        process.wait()


def has_loaded(library):
    return lambda process: str(library) in Path(f"/proc/{process.pid}/maps").read_text(
        encoding="utf-8")


def main(build):
    with tempfile.TemporaryDirectory() as folder:
        prefix, home = Path(folder, "prefix").resolve(), Path(folder, "home").resolve()
        home.mkdir()
        subprocess.run(["cmake", "--install", build, "--prefix", str(prefix)], check=True,
                       stdout=subprocess.DEVNULL)
        wrong = wrong_with_files(prefix)
        if not wrong:
            variables = environment(home)
            beside = prefix / "bin/libLorimet32.so"
            other = home / "another trailer.so"
            shutil.copy(beside, other)
            meeting = Path(variables["XDG_RUNTIME_DIR"], "norvick-lorimet/trailer.bench")
            wrong += runs(prefix / "bin/lorimet", variables, has_loaded(beside))
            wrong += runs(prefix / "bin/lorimet", {**variables, "LORIMET32": str(other)},
                          has_loaded(other))
            wrong += runs(prefix / "bin/lorimet_bench_window", variables,
                          lambda _: meeting.exists())
    for line in wrong:
        print(line)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
