#!/usr/bin/env python3
"""Installs a build under a prefix of its own and starts the program from there.

    tools/install_test.py <build folder>

The program runs on the offscreen platform until it has loaded the link library that was installed
beside it, and is ended then; it is ended as well when that takes too long.
"""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PATIENCE = 60  # seconds
EXPECTED = (
    "bin/lorimet",
    "bin/libLorimet32.so",
    "share/norvick-lorimet/help/en/index.html",
    "share/norvick-lorimet/help/fr/index.html",
    "share/norvick-lorimet/help/es/index.html",
    "share/norvick-lorimet/help/pictures/exit.png",
    "share/applications/norvick-lorimet.desktop",
    "share/metainfo/com.norvick.Lorimet.metainfo.xml",
    "share/norvick-lorimet/scenarios/healthy_4s2m.scenario",
    "share/icons/hicolor/48x48/apps/norvick-lorimet.png",
    "share/icons/hicolor/scalable/apps/norvick-lorimet.svg",
)


def environment(home):
    keep = {name: value for name, value in os.environ.items()
            if not name.startswith(("LORIMET32", "XDG_"))}
    folders = {name: str(home / name.lower()) for name in
               ("XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME")}
    for folder in folders.values():
        os.mkdir(folder, 0o700)
    return {**keep, **folders, "HOME": str(home), "LORIMET32_STATE": "none",
            "QT_QPA_PLATFORM": "offscreen"}


def loads(process, library):
    """Whether the program loads the library before it ends or the patience does."""
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline and process.poll() is None:
        if str(library) in Path(f"/proc/{process.pid}/maps").read_text(encoding="utf-8"):
            return True
        time.sleep(0.05)
    return False


def main(build):
    with tempfile.TemporaryDirectory() as folder:
        prefix, home = Path(folder, "prefix").resolve(), Path(folder, "home")
        home.mkdir()
        subprocess.run(["cmake", "--install", build, "--prefix", str(prefix)], check=True,
                       stdout=subprocess.DEVNULL)
        missing = [name for name in EXPECTED if not (prefix / name).is_file()]
        if missing:
            print("not installed:", *missing)
            return 1
        process = subprocess.Popen([str(prefix / "bin/lorimet")], env=environment(home), cwd=home,
                                   stdin=subprocess.DEVNULL)
        try:
            started = loads(process, prefix / "bin/libLorimet32.so")
            if not started:
                print("the installed program did not load its library; it ended with",
                      process.poll())
        finally:
            process.kill()
            process.wait()
    return 0 if started else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
