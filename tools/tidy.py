#!/usr/bin/env python3
"""Runs clang-tidy over the compile database, in parallel, and only over what has changed.

    tools/tidy.py <build folder> <cache folder> [part of a file name...]

A source is green when clang-tidy had nothing to say about it. What it was green for is kept as one
empty file in the cache folder, named by a hash of the source, of every header of the project that
it reaches, of the .clang-tidy files above it, of its compile command and of clang-tidy's version.
"""

import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ("src", "simulator", "tour", "autotests", "benchmarks", "fuzz")
GCC_ONLY = ("-fno-gnu-unique",)  # clang refuses to read these
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def include_folders(words):
    folders = []
    for i, word in enumerate(words):
        if word in ("-I", "-isystem") and i + 1 < len(words):
            folders.append(Path(words[i + 1]))
        elif word.startswith("-I"):
            folders.append(Path(word[2:]))
    return [f for f in folders if not str(f).startswith("/usr")]


def reached(source, folders, texts):
    """The source and the headers that it reaches by quoted includes, in a fixed order."""
    seen, stack = set(), [source]
    while stack:
        path = stack.pop()
        if path in seen:
            continue
        seen.add(path)
        if path not in texts:
            texts[path] = path.read_bytes()
        for header in INCLUDE.findall(texts[path]):
            name = header.decode("utf-8", "replace")
            for folder in [path.parent, *folders]:
                candidate = Path(os.path.normpath(folder / name))
                if candidate.is_file():
                    stack.append(candidate)
                    break
    return sorted(seen)


def key_of(source, words, version, texts):
    digest = hashlib.sha256(version)
    digest.update("\0".join(words).encode())
    for folder in [source.parent, *source.parents]:
        if (folder / ".clang-tidy").is_file():
            digest.update((folder / ".clang-tidy").read_bytes())
        if folder == ROOT:
            break
    for path in reached(source, include_folders(words), texts):
        digest.update(str(path).encode() + b"\0" + texts[path])
    return digest.hexdigest()


def clean_database(build, folder):
    """Writes the compile database as clang reads it, and returns its entries."""
    entries = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    for entry in entries:
        words = shlex.split(entry.pop("command", "")) or entry["arguments"]
        entry["arguments"] = [word for word in words if word not in GCC_ONLY]
    (folder / "compile_commands.json").write_text(json.dumps(entries), encoding="utf-8")
    return entries


def check(source, build):
    start = time.monotonic()
    run = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), str(source)],
                         capture_output=True, text=True, check=False)
    noise = re.compile(r"^(\d+ warnings? (and \d+ errors? )?generated\.|Suppressed .*|"
                       r"\d+ warnings? treated as errors?|Use -header-filter=.*)$")
    said = "\n".join(line for line in (run.stdout + run.stderr).splitlines()
                     if not noise.match(line)).strip()
    return run.returncode == 0 and not re.search(r"\b(warning|error):", said), said, \
        time.monotonic() - start


def main(arguments):
    if len(arguments) < 2:
        print(__doc__)
        return 2
    build, cache, wanted = Path(arguments[0]), Path(arguments[1]), arguments[2:]
    cache.mkdir(parents=True, exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, check=True).stdout
    texts, todo, known = {}, [], set()
    for entry in clean_database(build, cache):
        source = Path(entry["directory"], entry["file"])
        try:
            name = source.relative_to(ROOT).as_posix()
        except ValueError:
            continue
        if (name.split("/")[0] not in FOLDERS or name in known or not source.is_file() or
                (wanted and not any(part in name for part in wanted))):
            continue
        known.add(name)
        key = key_of(source, entry["arguments"], version, texts)
        if not (cache / key).exists():
            todo.append((name, source, key))
    print(f"clang-tidy: {len(todo)} of {len(known)} files to check", flush=True)
    red = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        running = {pool.submit(check, source, cache): (name, key) for name, source, key in todo}
        for done, future in enumerate(concurrent.futures.as_completed(running), 1):
            name, key = running[future]
            green, said, seconds = future.result()
            print(f"[{done}/{len(todo)}] {name} ({seconds:.1f} s){'' if green else ': FAILED'}",
                  flush=True)
            if green:
                (cache / key).touch()
            else:
                red += 1
                print(said, flush=True)
    print(f"clang-tidy: {red} file(s) with findings" if red else "clang-tidy: clean")
    return 1 if red else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
